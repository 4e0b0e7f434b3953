"""Finds the names of the platform that Objective-C++ sources use, in their syntax trees.

A use is a record (kind, owner, name, number, since):

    method      UIViewController  presentViewController:animated:completion:  3 arguments
    class-method, property, class-property
    value       UIDatePickerStyle UIDatePickerStyleWheels                     its number
    class       -                 UITextView                                  its superclass
    protocol, enum, function, constant
"""

import os
import re
from collections import namedtuple

from clang import cindex
from clang.cindex import CursorKind as Kind

ROOT = os.path.realpath(os.path.join(os.path.dirname(__file__), '..'))
STANDIN = os.path.join(ROOT, 'tests/uikit_standin')
FRAMEWORKS = ('Foundation', 'UIKit', 'MessageUI')
OURS = ('qv_commons/platform/uikit', 'examples/ios_host')

Use = namedtuple('Use', 'kind owner name number since')

METHODS = {Kind.OBJC_INSTANCE_METHOD_DECL: 'method', Kind.OBJC_CLASS_METHOD_DECL: 'class-method'}
PLAIN = {Kind.OBJC_PROTOCOL_DECL: 'protocol', Kind.ENUM_DECL: 'enum',
         Kind.FUNCTION_DECL: 'function', Kind.VAR_DECL: 'constant'}
REFERRING = {Kind.OBJC_MESSAGE_EXPR, Kind.DECL_REF_EXPR, Kind.MEMBER_REF_EXPR, Kind.TYPE_REF,
             Kind.OBJC_CLASS_REF, Kind.OBJC_SUPER_CLASS_REF, Kind.OBJC_PROTOCOL_REF}


def sources():
    """The adapter's and the example's, relative to the root."""
    return sorted(os.path.join(folder, file)[len(ROOT) + 1:]
                  for ours in OURS for folder, _, files in os.walk(os.path.join(ROOT, ours))
                  for file in files if file.endswith(('.m', '.mm')))


def flags(source, objc_headers, standin):
    language = (['-x', 'objective-c++', '-std=c++20'] if source.endswith('.mm') else
                ['-x', 'objective-c', '-std=gnu11'])
    return language + [
        '-fblocks', '-fobjc-arc', '-fobjc-runtime=gnustep-1.6', '-fobjc-exceptions', '-DGNUSTEP',
        '-DGNUSTEP_BASE_LIBRARY=1', '-DGNU_RUNTIME=1', '-D_NATIVE_OBJC_EXCEPTIONS', '-I' + ROOT,
        '-I' + os.path.join(ROOT, 'qv_commons/platform/uikit/include'), '-I' + standin,
        '-isystem', objc_headers, '-isystem', os.path.join(objc_headers, 'GNUstep'),
        '-DAPI_AVAILABLE(...)=__attribute__((annotate("since " #__VA_ARGS__)))']


def _kind(cursor):
    """None where the bindings don't know the kind (some attributes)."""
    try:
        return cursor.kind
    except ValueError:
        return None


class Finder:
    def __init__(self, objc_headers, standin=STANDIN):
        self._standin = os.path.realpath(standin)
        self._objc_headers = os.path.realpath(objc_headers)
        self._index = cindex.Index.create()
        self._declared = {}  # by the name of a class of ours: its interface and categories
        self.places = {}  # where each use was seen first, "file:line"
        self.unresolved = set()  # places where a template leaves open whose member is meant

    def read(self, source):
        """Adds the uses of one source and of the project's own headers that it includes."""
        path = os.path.join(ROOT, source)
        unit = self._index.parse(path, args=flags(source, self._objc_headers, self._standin))
        for diagnostic in unit.diagnostics:
            if diagnostic.severity >= cindex.Diagnostic.Error:
                raise SyntaxError(str(diagnostic))
        for cursor in unit.cursor.get_children():
            file = cursor.location.file
            if file and self._ours(file.name, path):
                self._walk(cursor)

    def _ours(self, file, path):
        file = os.path.realpath(file)
        return file == os.path.realpath(path) or file.startswith(
            tuple(os.path.join(ROOT, ours) + os.sep for ours in OURS))

    def _platform(self, declaration):
        file = declaration.location.file
        return file is not None and os.path.realpath(file.name).startswith((
            os.path.realpath(os.path.join(self._objc_headers, 'GNUstep')) + os.sep,
            self._objc_headers + os.sep,
            *(os.path.join(self._standin, framework) + os.sep for framework in FRAMEWORKS)))

    def _walk(self, cursor, called=False):
        if _kind(cursor) in REFERRING:
            referenced = cursor.referenced
            if referenced is not None and self._platform(referenced):
                self._add(referenced, cursor)
            if referenced is None and not called:  # what is called is a C++ function
                self.unresolved.add(_place(cursor))
        if _kind(cursor) in (Kind.OBJC_INTERFACE_DECL, Kind.OBJC_CATEGORY_DECL):
            self._declared.setdefault(_owner_name(cursor), []).append(cursor)
        if _kind(cursor) == Kind.OBJC_IMPLEMENTATION_DECL:
            self._add_overridden(cursor)
        for index, child in enumerate(cursor.get_children()):
            self._walk(child, called=index == 0 and _kind(cursor) == Kind.CALL_EXPR)

    def _add_overridden(self, implementation):
        """The methods that the platform calls: those of superclasses and protocols."""
        written = {method.spelling: method for method in implementation.get_children()
                   if _kind(method) in METHODS}
        for ancestor in _ancestors(self._declared[implementation.spelling]):
            for method in ancestor.get_children():
                if (_kind(method) in METHODS and method.spelling in written and
                        self._platform(method)):
                    self._add(method, written[method.spelling])

    def _add(self, declaration, cursor):
        use = _use(declaration)
        if use is not None:
            self.places.setdefault(use, _place(cursor))


def _place(cursor):
    file = os.path.relpath(os.path.realpath(cursor.location.file.name), ROOT)
    return f'{file}:{cursor.location.line}'


def _use(declaration):
    kind, name, since = _kind(declaration), declaration.spelling, _since(declaration)
    if kind in METHODS:
        owner = _owner_name(declaration.semantic_parent)
        return Use(METHODS[kind], owner, name, str(name.count(':')), since)
    if kind == Kind.OBJC_PROPERTY_DECL:
        tokens = [token.spelling for token in declaration.get_tokens()]
        of_class = 'class' in tokens[:tokens.index(')')] if ')' in tokens else False
        owner = _owner_name(declaration.semantic_parent)
        return Use('class-property' if of_class else 'property', owner, name, '-', since)
    if kind == Kind.ENUM_CONSTANT_DECL:
        enum = declaration.semantic_parent
        # One without a name is spelled by its place since clang 16.
        owner = '-' if not enum.spelling or enum.is_anonymous() else enum.spelling
        return Use('value', owner, name,
                   str(declaration.enum_value), since)
    if kind == Kind.OBJC_INTERFACE_DECL:
        supers = [child.spelling for child in declaration.get_children()
                  if _kind(child) == Kind.OBJC_SUPER_CLASS_REF]
        return Use('class', '-', name, supers[0] if supers else '-', since)
    if kind in PLAIN:
        return Use(PLAIN[kind], '-', name, '-', since)
    return None


def _owner_name(container):
    """The class that an interface or a category is for, or the protocol's name."""
    if _kind(container) == Kind.OBJC_CATEGORY_DECL:
        return next(child.spelling for child in container.get_children()
                    if _kind(child) == Kind.OBJC_CLASS_REF)
    return container.spelling


def _since(declaration):
    """The first system version that the declaration or what it is in is marked with, or "-"."""
    while declaration is not None and _kind(declaration) != Kind.TRANSLATION_UNIT:
        for child in declaration.get_children():
            if _kind(child) == Kind.ANNOTATE_ATTR:
                marked = re.search(r'since ios\(([\d.]+)\)', child.spelling)
                if marked:
                    return marked[1]
        declaration = declaration.semantic_parent
    return '-'


def _ancestors(declarations):
    """The classes and protocols above a class, by what its declarations and theirs name."""
    seen, waiting = {}, list(declarations)
    while waiting:
        for child in waiting.pop().get_children():
            if _kind(child) in (Kind.OBJC_SUPER_CLASS_REF, Kind.OBJC_PROTOCOL_REF,
                                Kind.OBJC_CLASS_REF):
                found = child.referenced.get_definition() or child.referenced
                if found.get_usr() not in seen:
                    seen[found.get_usr()] = found
                    waiting.append(found)
    return seen.values()
