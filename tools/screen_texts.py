"""The texts of the library's screens, as far as fixed ranges of them are links: what is wrong with one, how a label is
filled up to its range, and how a string table (.strings) is read."""
import re
import unicodedata

FILLER = "\u2060"  # word joiner: without width, and no line ends at it
GATE, REFUSAL = "QV_AgeGateViewController", "QV_AgeGateRefusedViewController"
# From and to in UTF-16 units, and what the range is for.
LINKS = {"tos": [(0, 14, "privacy policy"), (17, 33, "terms of service")],
         "contact": [(38, 60, "contact")]}
# What a string table calls the texts, and which view each is for.
KEYS = {
    GATE: {"header.text": "header", "subtitle.text": "subtitle", "picker.accessibilityLabel": "datePicker",
           "confirm.normalTitle": "confirmBtn", "policies.text": "tos"},
    REFUSAL: {"header.text": "header", "contact.text": "contact", "policies.text": "tos"},
}


def length(text):
    """In UTF-16 units."""
    return len(text.encode("utf-16-le")) // 2


def filled(label, units):
    """The label, filled up before the blank that may end it: a line can still end there."""
    words = label.rstrip(" ")
    return words + FILLER * (units - length(label)) + label[len(words):]


def _is_wide(character):
    """Of a script without blanks between words, where no word can be seen to be cut."""
    return unicodedata.east_asian_width(character) in "WF"


def _is_one_word(before, after):
    ends = before[-1:] + after[:1]
    return (len(ends) == 2 and not any(map(_is_wide, ends))
            and all(unicodedata.category(end)[0] in "LMN" for end in ends))


def _edge_problems(before, linked, after, link):
    before, linked, after = (text.replace(FILLER, "") for text in (before, linked, after))
    if linked[0].isspace():
        yield f"{link} begins with a blank: “{linked}”"
    if linked[-1].isspace():
        yield f"{link} ends with a blank: “{linked}”"
    if _is_one_word(before, linked):
        yield f"{link} begins within a word: “{linked}” after “{before}”"
    if _is_one_word(linked, after):
        yield f"{link} ends within a word: “{linked}” before “{after}”"


def link_problems(name, text):
    """What of the links of the view `name` doesn't hold, a sentence each."""
    units = (text or "").encode("utf-16-le")
    whole = len(units) // 2

    def part(begin, end):
        return units[2 * begin:2 * end].decode("utf-16-le", errors="replace")

    for begin, end, purpose in LINKS.get(name, []):
        link = f"the {purpose} link of {name}"
        if whole < end:
            yield f"the text of {name} has {whole} UTF-16 units; the {purpose} link ends at {end}"
            continue
        linked = part(begin, end)
        if "\ufffd" in linked:
            yield f"{link} cuts a character in two: “{linked}”"
        elif not linked.replace(FILLER, "").strip():
            yield f"{link} falls on blanks alone"
        else:
            yield from _edge_problems(part(0, begin), linked, part(end, whole), link)


_PIECE = re.compile(r'\s+|/\*.*?\*/|//[^\n]*|"((?:[^"\\]|\\.)*)"\s*=\s*"((?:[^"\\]|\\.)*)"\s*;', re.DOTALL)
_ESCAPES = {"n": "\n", "t": "\t"}


def _unescaped(text):
    return re.sub(r"\\(?:U([0-9A-Fa-f]{4})|(.))",
                  lambda found: chr(int(found[1], 16)) if found[1] else _ESCAPES.get(found[2], found[2]),
                  text, flags=re.DOTALL)


def parse_strings(data):
    """The texts of a string table by key; raises ValueError, with a sentence, where it isn't one."""
    try:
        text = data.decode("utf-8-sig")
    except UnicodeDecodeError as error:
        raise ValueError(f"isn't UTF-8: byte {error.start} is 0x{data[error.start]:02x}") from error
    table, place = {}, 0
    while place < len(text):
        piece = _PIECE.match(text, place)
        if piece is None:
            line = text.count("\n", 0, place) + 1
            raise ValueError(f'holds in line {line} what isn\'t of the form "key" = "words";')
        if piece[1] is not None:
            table[_unescaped(piece[1])] = _unescaped(piece[2])
        place = piece.end()
    return table


def table_problems(screen, table, further_keys=()):
    """What of a screen's string table doesn't hold. What it leaves out stays in the layout's language."""
    for key, text in table.items():
        view = KEYS[screen].get(key)
        if view is None:
            if key not in further_keys:
                yield f"{key} is no text of the layout"
            continue
        if not text.strip():
            yield f"{key} is empty"
        yield from link_problems(view, text)
        times = text.count("[APPNAME]")
        if screen == REFUSAL and view == "header" and times != 1:
            yield f"{key} holds [APPNAME] {times} times, and must hold it once"
