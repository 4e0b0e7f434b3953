"""Lays an interface file out on a device, by its constraints and by the sizes of its texts."""

from dataclasses import dataclass

import kiwisolver

from xib_document import text_of
from xib_solver import Relation, Solver
from xib_text import Font


@dataclass(frozen=True)
class Device:
    """A screen in points with its safe area's insets (top, left, bottom, right)."""
    name: str
    width: int
    height: int
    insets: tuple
    width_class: str
    height_class: str

    @property
    def size_class(self):
        return {'widthClass': self.width_class, 'heightClass': self.height_class}


DEVICES = (
    Device('320x568', 320, 568, (20, 0, 0, 0), 'compact', 'regular'),
    Device('375x667', 375, 667, (20, 0, 0, 0), 'compact', 'regular'),
    Device('390x844', 390, 844, (47, 0, 34, 0), 'compact', 'regular'),
    Device('844x390', 844, 390, (0, 47, 21, 47), 'compact', 'compact'),
    Device('768x1024', 768, 1024, (20, 0, 0, 0), 'regular', 'regular'),
    Device('1024x1366', 1024, 1366, (24, 0, 20, 0), 'regular', 'regular'),
)

PICKER = (320.0, 216.0)     # what a date picker with wheels asks for
_TEXT_VIEW = (10.0, 16.0)   # a text view's line fragment padding and text container insets
_SETTLED = 0.01


@dataclass
class Frame:
    left: float
    top: float
    width: float
    height: float

    @property
    def right(self):
        return self.left + self.width

    @property
    def bottom(self):
        return self.top + self.height


class Content:
    """What a view wants to be: the size of its text, title or wheels."""

    def __init__(self, item, content_size, texts):
        self.item = item
        self.font = self.text = None
        if item.kind in ('label', 'textView', 'button'):
            style = item.element.find("fontDescription[@key='fontDescription']").get('style')
            self.font = Font(style, content_size)
            self.text = texts(text_of(item))

    @property
    def padding(self):
        """Width and height around the text."""
        if self.item.kind == 'button':
            inset = self.item.element.find("inset[@key='contentEdgeInsets']")
            x = float(inset.get('minX')) + float(inset.get('maxX'))
            return x, float(inset.get('minY')) + float(inset.get('maxY'))
        return _TEXT_VIEW if self.item.kind == 'textView' else (0.0, 0.0)

    def size(self, width):
        """The size that shows all of it in a frame of `width`; a button's title is one line."""
        if self.item.kind == 'datePicker':
            return PICKER
        x, y = self.padding
        wrapped = self.font.size(self.text, *[width - x] * (self.item.kind != 'button'))
        return wrapped[0] + x, wrapped[1] + y


class Layout:
    """The solved layout: `frames` by item id in the device's points, `undetermined` names.

    `texts` turns a text of the file into the one shown (the app's name filled in, say);
    `is_reversed` is for languages that are written from right to left.
    """

    def __init__(self, document, device, content_size='L', texts=lambda text: text, is_reversed=False):
        self.document, self.device, self.is_reversed = document, device, is_reversed
        self.contents = {item.id: Content(item, content_size, texts)
                         for item in document.items.values()
                         if item.kind in ('label', 'textView', 'button', 'datePicker')}
        self._variables = {id: {name: kiwisolver.Variable(f'{id}.{name}')
                                for name in ('left', 'top', 'width', 'height')}
                           for id in document.items}
        widths = {id: float(device.width) for id in self.contents}
        while True:  # as on the device: the width decides how the text wraps, then the height
            solver = Solver(self._relations(widths))
            solved = {id: self._variables[id]['width'].value() for id in self.contents}
            if all(abs(solved[id] - widths[id]) < _SETTLED for id in widths):
                break
            widths = solved
        self.frames = {id: Frame(*(variable.value() for variable in item.values()))
                       for id, item in self._variables.items()}
        every = [variable for item in self._variables.values() for variable in item.values()]
        self.undetermined = [variable.name() for variable in solver.undetermined(every)]

    def _relations(self, widths):
        relations = list(self._given())
        for constraint in self.document.constraints(self.device.size_class):
            attributes = {constraint.first_attribute, constraint.second_attribute}
            # As the platform does it: of the others, a constant keeps its direction.
            is_mirrored = self.is_reversed and not attributes.isdisjoint({'leading', 'trailing'})
            right = constraint.constant
            if constraint.second:
                right = right + constraint.multiplier * self._attribute(
                    constraint.second, constraint.second_attribute, is_mirrored)
            left = self._attribute(constraint.first, constraint.first_attribute, is_mirrored)
            relations.append(Relation(constraint.id, left - right, constraint.relation,
                                      constraint.priority))
        for content in self.contents.values():
            relations += self._wishes(content, content.size(widths[content.item.id]))
        return relations

    def _attribute(self, id, attribute, is_mirrored):
        """As a linear expression, in which x grows to the left where it is mirrored."""
        item = self._variables[id]
        left, right = item['left'] * 1, item['left'] + item['width']
        if is_mirrored:
            left, right = -1 * right, -1 * left
        return {
            'leading': left, 'top': item['top'] * 1,
            'width': item['width'] * 1, 'height': item['height'] * 1,
            'trailing': right, 'bottom': item['top'] + item['height'],
            'centerX': (left + right) * 0.5,
            'centerY': item['top'] + item['height'] * 0.5,
        }[attribute]

    def _given(self):
        """What the device settles: the window, the safe area, where a scroll view's content starts
        (below the safe area's insets), and that nothing has a negative size."""
        top, left, bottom, right = self.device.insets
        width, height = self.device.width, self.device.height
        for id, item in self.document.items.items():
            yield from self._equal(id, {'window': (0, 0, width, height),
                                        'safeArea': (left, top, width - left - right,
                                                     height - top - bottom),
                                        'contentLayoutGuide': (left, top)}.get(
                                            'window' if item.parent is None else item.key, ()))
            if item.key == 'frameLayoutGuide':
                for name, variable in self._variables[id].items():
                    yield Relation(f'{id}.{name}', variable - self._variables[item.parent.id][name],
                                   'equal')
            for name in ('width', 'height'):
                yield Relation(f'{id}.{name}', self._variables[id][name] * 1, 'greaterThanOrEqual')

    def _equal(self, id, values):
        for (name, variable), value in zip(self._variables[id].items(), values):
            yield Relation(f'{id}.{name}', variable - value, 'equal')

    def _wishes(self, content, size):
        item = content.item
        for name, axis, length in zip(('width', 'height'), ('horizontal', 'vertical'), size):
            expression = self._variables[item.id][name] - length
            yield Relation(f'{item.id} hugs its content, {axis}', expression, 'lessThanOrEqual',
                           item.priority('Hugging', axis))
            yield Relation(f'{item.id} resists compression, {axis}', expression,
                           'greaterThanOrEqual', item.priority('CompressionResistance', axis))
