"""Where a C++ source can be changed a little, and how: for scripts/mutants.

A change that can be switched on at run time is written into the source together with the original
(`VNT_MUTANT(7)` is true while change 7 is on), so that one build holds them all. Where the compiler has settled the
value, as in a table, the change has no effect there and is made in the source itself instead (`plain`).
"""
import re
from dataclasses import dataclass


@dataclass
class Site:
    path: str
    line: int
    begin: int
    end: int
    kind: str
    plain: str  # the text in place of begin..end when the change is made for good
    before: str = ''  # what a switch puts before and behind them, `@` being its number,
    behind: str = ''
    instead: str = ''  # or in place of them; nothing at all where there is no switch
    number: int = 0
    key: str = ''  # its name, whatever else changes

    def has_switch(self):
        return bool(self.before or self.instead)

    def says(self, text):
        old = text[self.begin:self.end].strip()
        return f"{self.path}:{self.line}: {self.kind}: {old} -> {self.plain.strip() or 'nothing'}"


def blank_out(text):
    """The text with comments, strings, characters and preprocessor lines as blanks, so that offsets stay."""
    pattern = re.compile(r'//[^\n]*|/\*.*?\*/|[uUL]?"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#[^\n]*', re.S | re.M)
    return pattern.sub(lambda m: re.sub(r'[^\n]', ' ', m.group(0)), text)


def closing(masked, opening):
    depth = 0
    for i in range(opening, len(masked)):
        if masked[i] in '([{':
            depth += 1
        elif masked[i] in ')]}':
            depth -= 1
            if depth == 0:
                return i
    return -1


# Each binary operator, and what stands for it when the change is on.
OPERATORS = {'<': '<=', '<=': '<', '>': '>=', '>=': '>', '==': '!=', '!=': '==', '+': '-', '-': '+', '*': '+', '/': '*',
             '%': '/'}
PROXIES = {'<': 'Relation', '<=': 'Relation', '>': 'Relation', '>=': 'Relation', '==': 'Equality', '!=': 'Equality',
           '+': 'Sum', '-': 'Sum', '*': 'Product', '/': 'Product', '%': 'Product'}

SKIPPED_LINE = re.compile(r'static_assert|= (?:default|delete);|\) (?:const )?= 0;|\boperator\b|^\s*template\b|^\s*using\b|'
                          r'\brequires\b|^\s*namespace\b|^\s*(class|struct|friend|public|private|protected)\b')
# An assignment to, or a call of, what is one word: what begins with two words declares something.
STATEMENT = re.compile(r'^ {4,}(?!return|if|for|while|switch|throw)[\w.:>()\[\]*-]+(?: (?:[-+*/%|&]?=) [^;{}]*|\([^;{}]*\)|\+\+|--);$')


def find_sites(path, text):
    masked = blank_out(text)
    sites = []
    offset = 0
    for number, line in enumerate(masked.split('\n'), 1):
        if not SKIPPED_LINE.search(line):
            sites += sites_of_line(path, number, line, offset, masked, text)
        offset += len(line) + 1
    sites += swapped_rows(path, masked, text)
    return sites


def sites_of_line(path, number, line, offset, masked, text):
    found = []

    def add(begin, end, kind, plain, **switch):
        found.append(Site(path, number, offset + begin, offset + end, kind, plain, **switch))

    for m in re.finditer(r'(?<![\w.\'])(0x[0-9A-Fa-f]+|0|[1-9]\d*)(u?)(?![\w.\'])', line):
        value = int(m.group(1), 0)
        for other in ([value + 1] if value == 0 else [value + 1, value - 1]):
            shown = (f'0x{other:X}' if m.group(1).startswith('0x') else str(other)) + m.group(2)
            add(m.start(), m.end(), 'constant', shown, before=f'(VNT_MUTANT(@) ? {shown} : ', behind=')')
    for m in re.finditer(r'\b(true|false)\b', line):
        other = 'false' if m.group(1) == 'true' else 'true'
        add(m.start(), m.end(), 'constant', other, before=f'(VNT_MUTANT(@) ? {other} : ', behind=')')
    for m in re.finditer(r' (<=|>=|==|!=|<|>|\+|-|\*|/|%) (?=\S)', line):
        sign = m.group(1)
        if line[:m.start()].endswith(('return', '(', ',', '=', 'auto')):
            continue
        proxy = f'VNT_{PROXIES[sign].upper()}(@, {ord(sign[0])}{1 if len(sign) > 1 else 0})'
        same = {'Relation': '<', 'Equality': '==', 'Sum': '+', 'Product': '*'}[PROXIES[sign]]
        add(m.start(1), m.end(1), 'operator', OPERATORS[sign], instead=f'{same} {proxy} {same}')
    for m in re.finditer(r' (&&|\|\|) ', line):
        forced = 'false' if m.group(1) == '&&' else 'true'
        switch = '!VNT_MUTANT(@)' if forced == 'false' else 'VNT_MUTANT(@)'
        add(m.start(1), m.end(1), 'operator', f'{m.group(1)} {forced} {m.group(1)}',
            instead=f'{m.group(1)} {switch} {m.group(1)}')
    for m in re.finditer(r'\bif \(', line):
        begin = offset + m.end() - 1
        end = closing(masked, begin)
        condition = masked[begin + 1:end]
        if end < 0 or ';' in condition or re.search(r'(?<![=!<>])=(?!=)', condition):
            continue
        inner = text[begin + 1:end]
        found.append(Site(path, number, begin, end + 1, 'condition', f'(!({inner}))',
                          before='(VNT_MUTANT(@) != static_cast<bool>', behind=')'))
    before = masked[:offset].rstrip()
    if STATEMENT.match(line) and before.endswith((';', '{', '}')):
        begin = len(line) - len(line.lstrip())
        add(begin, len(line), 'statement', ';', before='if (!VNT_MUTANT(@)) ')
    return found


def swapped_rows(path, masked, text):
    """Two neighbouring rows of a table: lines that are one braced group each."""
    found = []
    lines = text.split('\n')
    offset = 0
    for i in range(len(lines) - 1):
        a, b = lines[i], lines[i + 1]
        if re.match(r'^\s+\{.*\},$', a) and re.match(r'^\s+\{.*\},$', b) and a != b:
            found.append(Site(path, i + 1, offset, offset + len(a) + 1 + len(b), 'rows swapped', b + '\n' + a))
        offset += len(a) + 1
    return found


def with_switches(text, sites, are_tables=False):
    """The text with the switches of all sites; they nest. Of tables each is asked when the table is made, at run time."""
    tables = table_regions(text) if are_tables else []
    edits = []  # place, order at the place, end of what is replaced, text
    for site in sites:
        number = str(site.number)
        if site.instead:
            edits.append((site.begin, 0, site.end, site.instead.replace('@', number)))
        elif site.before:
            size = site.end - site.begin
            before = site.before.replace('@', number)
            if any(begin <= site.begin < end for begin, end in tables):
                before = before.replace('VNT_MUTANT', 'VNT_ASK')
            edits.append((site.begin, -size, site.begin, before))
            edits.append((site.end, -1000000 + size, site.end, site.behind))
    out, at = [], 0
    for begin, _, end, new in sorted(edits, key=lambda e: e[:2]):
        out += [text[at:begin], new]
        at = end
    switched = ''.join(out + [text[at:]])
    if tables:
        switched = re.sub(r'^constexpr (?=[\w:<>, ]+ [\w:]+(?:\[\d*\])? ?[={])', 'const ', switched, flags=re.M)
        switched = re.sub(r'^static_assert\(', 'static_assert(true || ', switched, flags=re.M)
    return switched


def table_regions(text):
    masked = blank_out(text)
    starts = [m.end() - 1 for m in re.finditer(r'^constexpr [\w:<>]+ \w+\[\w*\] = \{', masked, re.M)]
    return [(start, closing(masked, start)) for start in starts]
