"""Where a C++ text written by clang-format can get a small slip, and what it then says. Used by mutazioni.py."""
import collections
import re

# `text[start:end]` becomes one of `becomes`.
Slip = collections.namedtuple("Slip", "kind start end becomes")

OPERATORS = {
    "<": ["<=", ">"], "<=": ["<", ">="], ">": [">=", "<"], ">=": [">", "<="], "==": ["!="], "!=": ["=="],
    "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "+=": ["-="], "-=": ["+="],
}
NO_STATEMENT = set("""return using case default public private protected namespace template typedef friend
    static_assert struct class enum const constexpr auto static inline explicit virtual extern if for while
    switch else do Q_OBJECT""".split())
NO_CALL = set("if for while switch catch return sizeof decltype alignof noexcept explicit".split())

SILENT = re.compile(
    r'//[^\n]*|/\*.*?\*/|^[ \t]*#(?:[^\n\\]|\\.)*|R"(?P<end>\w*)\(.*?\)(?P=end)"'
    r"|\"(?:[^\"\\\n]|\\.)*\"|(?<!\w)'(?:[^'\\\n]|\\.)+'", re.S | re.M)
PARAMETER = re.compile(r"(?:const )?[\w:]+(?:<.*>)?[&*]*(?: const)? [&*]*\w+(?: = .*)?|\s*")


def code_of(text):
    """The text with blanks for comments, literals of characters and the preprocessor's lines, of the same length."""
    return SILENT.sub(lambda m: re.sub(r"[^\n]", " ", m[0]), text)


def closing(code, opening):
    """Where the bracket at `opening` closes."""
    depth = 0
    for i in range(opening, len(code)):
        depth += (code[i] in "([{") - (code[i] in ")]}")
        if depth == 0:
            return i
    return len(code)


def arguments(code, opening, end):
    """The ranges between the commas of a call."""
    ranges, start, depth = [], opening + 1, 0
    for i in range(opening + 1, end):
        template = code[i] in "<>" and code[i - 1] not in " -=" and code[i + 1] != "="
        depth += (code[i] in "([{" or (template and code[i] == "<"))
        depth -= (code[i] in ")]}" or (template and code[i] == ">"))
        if code[i] == "," and depth == 0:
            ranges.append((start, i))
            start = i + 1
    return ranges + [(start, end)]


def slips_of_operators(code):
    for m in re.finditer(r"(?<=\s)(%s)(?=\s)" % "|".join(map(re.escape, OPERATORS)), code):
        yield Slip("operator", m.start(), m.end(), OPERATORS[m[0]])
    for m in re.finditer(r"\+\+|--", code):
        yield Slip("operator", m.start(), m.end(), ["--" if m[0] == "++" else "++"])


def slips_of_numbers(code):
    for m in re.finditer(r"(?<![\w.'])\d+(?![\w.'])", code):
        n = int(m[0])
        yield Slip("off by one", m.start(), m.end(), [str(n + 1)] + ([str(n - 1)] if n else []))


def slips_of_truth(code):
    for m in re.finditer(r"\b(true|false)\b", code):
        yield Slip("true/false", m.start(), m.end(), ["false" if m[0] == "true" else "true"])


def slips_of_conditions(code, text):
    for m in re.finditer(r"\b(?:if|while) \(", code):
        start, end = m.end(), closing(code, m.end() - 1)
        if not re.search(r";|[^=!<>]=[^=]", code[start:end]):
            yield Slip("negated condition", start, end, ["!(%s)" % text[start:end]])
    for m in re.finditer(r"!(?=[\w(])", code):
        yield Slip("negated condition", m.start(), m.end(), [""])


def slips_of_statements(code):
    for line in re.finditer(r"^ +(\S.*);[ ]*$", code, re.M):
        start = line.start(1)
        controlled = re.match(r"(?:else )?(?:if|for|while) \(|else ", code[start:line.end()])
        if controlled:
            start += controlled.end()
            if controlled[0].endswith("("):
                start = closing(code, start - 1) + 2
        elif not re.search(r"[;{}):]\s*\Z|\belse\s*\Z", code[max(0, start - 400):start]):
            continue  # the end of a longer statement
        statement = code[start:line.end(1)]
        word = re.match(r"[\w:.>*~-]+", statement)
        if not word or statement.count("(") != statement.count(")"):
            continue
        rest = statement[word.end():]
        if word[0] in ("break", "continue", "throw") or statement == "return" or (
                word[0] not in NO_STATEMENT and re.match(r"[(\[]| [-+*/|&^%]?= ", rest)):
            yield Slip("deleted statement", start, line.end(1), [""])


def slips_of_calls(code, text):
    for m in re.finditer(r"\b(\w+)\(", code):
        end = closing(code, m.end() - 1)
        ranges = arguments(code, m.end() - 1, end)
        if m[1] in NO_CALL or any(PARAMETER.fullmatch(code[a:b].strip()) and '"' not in text[a:b] for a, b in ranges):
            continue
        for (a, b), (c, d) in zip(ranges, ranges[1:]):
            one, other = text[a:b].strip(), text[c:d].strip()
            if one != other:
                yield Slip("swapped arguments", text.index(one, a), d, ["%s, %s" % (other, one)])


def slips(text):
    code = code_of(text)
    return [*slips_of_operators(code), *slips_of_numbers(code), *slips_of_truth(code),
            *slips_of_conditions(code, text), *slips_of_statements(code), *slips_of_calls(code, text)]
