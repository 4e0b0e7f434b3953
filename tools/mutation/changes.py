"""The changes that can be made to a C++ source, one at a time: operators, constants, conditions, statements.

The source is told apart into tokens, not understood; a change that isn't C++ doesn't compile and is
dropped then. It relies on the form that clang-format gives: an operator of two operands stands between
blanks, the angle brackets of a template don't.
"""
import dataclasses
import re

TOKEN = re.compile(r"""
    (?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ ]*\#(?:[^\n\\]|\\.)*)
  | (?P<string>(?:u8|u|U|L|@)?"(?:[^"\\\n]|\\.)*"|R"\((?:.*?)\)")
  | (?P<char>(?:u8|u|U|L)?'(?:[^'\\\n]|\\.)+')
  | (?P<number>\d(?:'?[\w.]|(?<=[eE])[+-])*)
  | (?P<name>@?[A-Za-z_]\w*)
  | (?P<operator><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

OPERATORS = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&",
             "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "<<": ">>", ">>": "<<", "&": "|", "|": "&",
             "^": "&", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "|=": "&=", "&=": "|="}
NO_STATEMENT = {"using", "const", "constexpr", "static", "struct", "class", "enum", "template", "namespace",
                "auto", "typedef", "friend", "extern", "public", "private", "protected", "case", "default",
                "if", "for", "while", "do", "switch", "else", "static_assert", "explicit", "virtual",
                "@property", "@synthesize", "@class", "@end"}


@dataclasses.dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


@dataclasses.dataclass(frozen=True)
class Change:
    start: int
    end: int
    text: str

    def applied(self, source):
        return source[:self.start] + self.text + source[self.end:]

    def line(self, source):
        return source.count("\n", 0, self.start) + 1

    def shown(self, source):
        """The line that it begins in, before and after, on one line each."""
        begin = source.rfind("\n", 0, self.start) + 1
        end = source.find("\n", self.end)
        end = len(source) if end < 0 else end
        after = source[begin:self.start] + self.text + source[self.end:end]
        return " ".join(source[begin:end].split()), " ".join(after.split())


def tokens_of(source):
    return [Token(match.lastgroup, match[0], match.start()) for match in TOKEN.finditer(source)
            if match.lastgroup != "skip"]


def closing(tokens, at):
    """The index of what closes the parenthesis at `at`."""
    depth = 0
    for index in range(at, len(tokens)):
        depth += {"(": 1, ")": -1}.get(tokens[index].text, 0) if tokens[index].kind == "operator" else 0
        if depth == 0:
            return index
    return None


def of_token(source, tokens, at):
    token = tokens[at]
    between = source[token.start - 1:token.start].isspace() and source[token.end:token.end + 1].isspace()
    if token.kind == "operator":
        if token.text in OPERATORS and between:
            yield OPERATORS[token.text]
        elif token.text in ("++", "--"):
            yield {"++": "--", "--": "++"}[token.text]
        elif token.text == "!":
            yield ""
    elif token.kind == "number":
        yield f"({token.text} + 1)"
    elif token.kind == "char":
        yield f"({token.text} + 1)"
    elif token.kind == "string":
        quote = token.text.index('"')
        yield token.text[:quote] + ('""' if len(token.text) - quote > 2 else '"x"')
    elif token.text in ("true", "false"):
        yield "false" if token.text == "true" else "true"


def conditions(source, tokens):
    for at, token in enumerate(tokens[:-1]):
        if token.text not in ("if", "while") or tokens[at + 1].text != "(":
            continue
        end = closing(tokens, at + 1)
        inside = tokens[at + 2:end]
        if any(t.text in (";", "=") for t in inside):
            continue
        for value in ("true", "false") if token.text == "if" else ("false",):
            yield Change(inside[0].start, inside[-1].end, value)


def ends_head(tokens, at):
    """Whether the parenthesis that closes at `at` is that of an if, a for or a while."""
    depth = 0
    for index in range(at, -1, -1):
        depth += {")": 1, "(": -1}.get(tokens[index].text, 0)
        if depth == 0:
            return index > 0 and tokens[index - 1].text in ("if", "for", "while", "constexpr")
    return False


def statements(tokens):
    """Each statement of an expression, and each return without a value, taken out."""
    for at in range(1, len(tokens)):
        before = tokens[at - 1].text
        begins = before in (";", "{", "}", "else") or (before == ")" and ends_head(tokens, at - 1))
        if not begins or tokens[at].text in NO_STATEMENT or tokens[at].kind == "operator" and \
                tokens[at].text not in ("*", "++", "--", "("):
            continue
        depth = 0
        for index in range(at, len(tokens)):
            text = tokens[index].text if tokens[index].kind == "operator" else ""
            depth += {"(": 1, "{": 1, "[": 1, ")": -1, "}": -1, "]": -1}.get(text, 0)
            if depth < 0:
                break
            if depth == 0 and text == ";":
                words = [t.text for t in tokens[at:index]]
                is_plain_exit = words in (["return"], ["break"], ["continue"])
                if is_plain_exit or words[0] != "return" and \
                        any(w in ("(", "=", "++", "--", "+=", "-=", "|=") for w in words):
                    yield Change(tokens[at].start, tokens[index].start, "")
                break


def changes_of(source):
    """All changes, in the order of their places."""
    tokens = tokens_of(source)
    found = {Change(token.start, token.end, text)
             for at, token in enumerate(tokens) for text in of_token(source, tokens, at)}
    found.update(conditions(source, tokens))
    found.update(statements(tokens))
    return sorted(found, key=lambda change: (change.start, change.end, change.text))
