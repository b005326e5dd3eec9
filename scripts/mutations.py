"""Where a C++ source can be changed in one place so that it does something else."""

import random
import re
from dataclasses import dataclass

# What a place may be changed into. Signs stand between blanks, as clang-format sets them, so that
# brackets of templates and references are not taken for them.
SIGNS = {
    " < ": [" <= ", " >= "],
    " <= ": [" < ", " > "],
    " > ": [" >= ", " <= "],
    " >= ": [" > ", " < "],
    " == ": [" != "],
    " != ": [" == "],
    " && ": [" || "],
    " || ": [" && "],
    " + ": [" - "],
    " - ": [" + "],
    " * ": [" / "],
    " / ": [" * "],
    " += ": [" -= ", " = "],
    " -= ": [" += ", " = "],
    "++": ["--"],
}
WORDS = {
    "true": ["false"],
    "false": ["true"],
    "min": ["max"],
    "max": ["min"],
    "left": ["right"],
    "right": ["left"],
    "top": ["bottom"],
    "bottom": ["top"],
    "width": ["height"],
    "height": ["width"],
    "toPixelsX": ["toPixelsY"],
    "toPixelsY": ["toPixelsX"],
    "front": ["back"],
    "back": ["front"],
}
# Statements that are more than a call or an assignment, or that nothing compiles without.
KEPT = re.compile(
    r"(return|throw|using|namespace|static|const|constexpr|auto|case|default|else|template|break|"
    r"continue|public|private|if|for|while|do|struct|class|enum|friend|explicit|switch|try|catch)\b"
)
PREPROCESSOR = re.compile(r"^[ \t]*#.*(?:\\\n.*)*", re.M)
OPAQUE = re.compile(
    r'//[^\n]*|/\*.*?\*/|\w*R"(?P<end>\w*)\(.*?\)(?P=end)"|'
    r"""\w*"(?:\\.|[^"\\\n])*"|(?<![0-9])(?:\bu8|\b[uUL])?'(?:\\.|[^'\\\n])+'""",
    re.S,
)


@dataclass(frozen=True)
class Mutation:
    """The text between two places of a source, and what stands there instead."""

    kind: str
    begin: int
    end: int
    text: str

    def applied(self, source):
        return source[: self.begin] + self.text + source[self.end :]


def code_of(source):
    """The source with blanks in the place of comments, texts and preprocessor lines: every other
    character stands where it stood."""

    def blank(match):
        return re.sub(r"[^\n]", "\x01", match.group(0))

    return OPAQUE.sub(blank, PREPROCESSOR.sub(blank, source))


def closing(code, opening):
    """The bracket that closes the one at that place; None where there is none."""
    pairs = {"(": ")", "{": "}", "[": "]"}
    stack = []
    for place in range(opening, len(code)):
        if code[place] in pairs:
            stack.append(pairs[code[place]])
        elif code[place] in ")}]":
            if stack.pop() != code[place]:
                return None
            if not stack:
                return place
    return None


def arguments(code, opening):
    """Begin and end of what the commas between two brackets part."""
    end = closing(code, opening)
    if end is None:
        return []
    parts, depth, begin = [], 0, opening + 1
    for place in range(opening + 1, end):
        if code[place] in "({[":
            depth += 1
        elif code[place] in ")}]":
            depth -= 1
        elif code[place] == "," and depth == 0:
            parts.append((begin, place))
            begin = place + 1
    parts.append((begin, end))
    return parts


def signs(code):
    for sign, others in SIGNS.items():
        for match in re.finditer(re.escape(sign), code):
            for other in others:
                yield Mutation("sign", match.start(), match.end(), other)


def words(code):
    for match in re.finditer(r"\b[A-Za-z]\w*\b", code):
        for other in WORDS.get(match.group(0), []):
            yield Mutation("word", match.start(), match.end(), other)


def numbers(code):
    for match in re.finditer(r"(?<![\w.'])\d+(\.\d+)?(?![\w.'])", code):
        text = match.group(0)
        for step in (1, -1):
            if "." in text:
                changed = repr(round(float(text) * (1 + step / 4), 6)) if float(text) else "0.5"
            else:
                changed = str(int(text) + step)
            yield Mutation("number", match.start(), match.end(), changed)


def named_constants(code):
    """A constant of the file in the place of another one that it uses."""
    names = sorted(set(re.findall(r"\bk[A-Z]\w*\b(?=[ \[]?[=({;])", code)))
    for match in re.finditer(r"\bk[A-Z]\w*\b", code):
        if "constexpr" in code[code.rfind("\n", 0, match.start()) : match.start()]:
            continue
        for other in names:
            if other != match.group(0):
                yield Mutation("constant", match.start(), match.end(), other)


def conditions(source, code):
    for match in re.finditer(r"\b(if|while) \(", code):
        begin, end = match.end(), closing(code, match.end() - 1)
        inner = code[begin:end]
        if end is None or ";" in inner or re.search(r"[^=!<>]=[^=]", inner):
            continue  # declares something
        yield Mutation("condition", begin, end, "!(" + source[begin:end] + ")")
    for match in re.finditer(r"(?<=[ (])!(?=[\w(])", code):
        yield Mutation("condition", match.start(), match.end(), "")


def swaps(source, code):
    for match in re.finditer(r"\w[({]", code):
        parts = arguments(code, match.end() - 1)
        for first, second in zip(parts, parts[1:]):
            one, other = source[slice(*first)].strip(), source[slice(*second)].strip()
            if one and other and one != other and "\x01" not in code[first[0] : second[1]]:
                yield Mutation("swap", first[0], second[1], f"{other}, {one}")


def statements(source, code):
    for match in re.finditer(r"(?<=[;{}])\s*\n[ \t]+(?=[\w*])", code):
        begin, place = match.end(), match.end()
        while place < len(code) and code[place] not in ";{}":
            place = (closing(code, place) or len(code)) if code[place] in "([" else place
            place += 1
        text = code[begin:place]
        is_call = re.match(r"[\w.:>\-\[\]*]+(\(|\s*[-+|]?= |\+\+)", text)
        if place < len(code) and code[place] == ";" and is_call and not KEPT.match(text):
            yield Mutation("statement", begin, place + 1, ";")


def mutations(source):
    """All of them, in the order of their places."""
    code = code_of(source)
    found = [
        *signs(code),
        *words(code),
        *numbers(code),
        *named_constants(code),
        *conditions(source, code),
        *swaps(source, code),
        *statements(source, code),
    ]
    return sorted(found, key=lambda mutation: (mutation.begin, mutation.end, mutation.text))


def drawn(sources, count, seed):
    """That many (path, mutation), no place twice. `sources`: path to text. The kinds are drawn
    first, each as likely as any other, so that the many numbers do not outweigh the rest."""
    by_kind = {}
    for path in sorted(sources):
        for mutation in mutations(sources[path]):
            by_kind.setdefault(mutation.kind, []).append((path, mutation))
    chance = random.Random(seed)
    chosen, places = [], set()
    while len(chosen) < count and by_kind:
        kind = chance.choice(sorted(by_kind))
        candidates = by_kind[kind]
        path, mutation = candidates.pop(chance.randrange(len(candidates)))
        if not candidates:
            del by_kind[kind]
        if (path, mutation.begin) not in places:
            places.add((path, mutation.begin))
            chosen.append((path, mutation))
    return chosen
