"""Reads an interface file (.xib): its objects, connections and constraints."""

import os
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass, field, replace

BUNDLE = os.path.join(os.path.dirname(__file__), '../../qv_commons/resources/QV_Commons_iOS.bundle')
SCREENS = ('QV_AgeGateViewController', 'QV_AgeGateRefusedViewController')
# Beside English, which the layouts themselves are in.
LANGUAGES = ('ar', 'de', 'es', 'fr', 'he', 'hi', 'it', 'ja', 'ko', 'nl', 'pl', 'pt', 'ru', 'tr', 'uk',
             'zh-Hans', 'zh-Hant')

# The class that each element stands for, where it names none of its own.
CLASSES = {
    'view': 'UIView', 'scrollView': 'UIScrollView', 'label': 'UILabel', 'button': 'UIButton',
    'datePicker': 'UIDatePicker', 'textView': 'UITextView', 'viewLayoutGuide': 'UILayoutGuide',
}


@dataclass
class Item:
    """A view or a layout guide. `key` tells the guides apart: safeArea, contentLayoutGuide, ..."""
    id: str
    element: ElementTree.Element
    parent: 'Item | None'
    children: list = field(default_factory=list)

    @property
    def kind(self):
        return self.element.tag

    @property
    def key(self):
        return self.element.get('key')

    def priority(self, behaviour, axis):
        """Content hugging or compression resistance along `axis`, as the platform defaults them."""
        name = f'{axis}{behaviour}Priority'
        default = 250 if behaviour == 'Hugging' else 750
        if behaviour == 'Hugging' and self.kind == 'label':
            default = 251
        return int(self.element.get(name, default))


@dataclass
class Constraint:
    """`first.first_attribute relation multiplier * second.second_attribute + constant`."""
    id: str
    first: str
    first_attribute: str
    relation: str = 'equal'
    second: 'str | None' = None
    second_attribute: 'str | None' = None
    multiplier: float = 1.0
    constant: float = 0.0
    priority: int = 1000
    element: 'ElementTree.Element | None' = None


class Document:
    """A parsed interface file. Ids are unique; what they refer to is for the caller to check."""

    def __init__(self, text):
        self.root = ElementTree.fromstring(text)
        self.items = {}
        self.owner = self.root.find("objects/placeholder[@placeholderIdentifier='IBFilesOwner']")
        for element in self.root.find('objects'):
            if element.tag in CLASSES:
                self.view = self._add(element, None)

    @classmethod
    def load(cls, screen):
        with open(os.path.join(BUNDLE, 'Base.lproj', screen + '.xib'), encoding='utf-8') as file:
            return cls(file.read())

    def _add(self, element, parent):
        item = Item(element.get('id'), element, parent)
        self.items[item.id] = item
        for child in list(element.findall('subviews/*')) + element.findall('viewLayoutGuide'):
            item.children.append(self._add(child, item))
        return item

    def all_constraints(self):
        """Every constraint, whether or not some size class leaves it out, by the view it is in."""
        for item in self.items.values():
            for element in item.element.findall('constraints/constraint'):
                yield item, _constraint(element, item.id)

    def constraints(self, size_class):
        """Those in force for, say, {'widthClass': 'compact', 'heightClass': 'regular'}."""
        active = []
        for item, constraint in self.all_constraints():
            if _included(item.element, constraint.id, size_class):
                active.append(_varied(constraint, size_class))
        return active


def text_of(item):
    """What a label, text view or button shows, before any placeholder is filled in."""
    if item.kind == 'button':
        return item.element.find("state[@key='normal']").get('title')
    return item.element.get('text')


def _constraint(element, owner):
    get = element.get
    return Constraint(
        id=get('id'), first=get('firstItem', owner), first_attribute=get('firstAttribute'),
        relation=get('relation', 'equal'), second=get('secondItem'),
        second_attribute=get('secondAttribute'), multiplier=float(get('multiplier', 1)),
        constant=float(get('constant', 0)), priority=int(get('priority', 1000)), element=element)


def _matching(element, size_class):
    """The variations of `element` that hold, the default first and the most special last."""
    def conditions(variation):
        key = variation.get('key')
        return [] if key == 'default' else [part.split('=') for part in key.split('-')]
    holds = [variation for variation in element.findall('variation')
             if all(size_class[name] == value for name, value in conditions(variation))]
    return sorted(holds, key=lambda variation: len(conditions(variation)))


def _included(owner, constraint_id, size_class):
    included = True
    for variation in _matching(owner, size_class):
        for reference in variation.findall("mask[@key='constraints']/*"):
            if reference.get('reference') == constraint_id:
                included = reference.tag == 'include'
    return included


def _varied(constraint, size_class):
    for variation in _matching(constraint.element, size_class):
        constant = float(variation.get('constant', constraint.constant))
        priority = int(variation.get('priority', constraint.priority))
        constraint = replace(constraint, constant=constant, priority=priority)
    return constraint
