"""A C++ source as the mutation check looks at it: its text, the same text with comments, directives and the insides of
literals blanked out, and the places in it."""

import re

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
       |(?P<directive>^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*)
       |(?P<literal>L?"(?:[^"\\\n]|\\.)*"|L?'(?:[^'\\\n]|\\.)*')""",
    re.VERBOSE | re.DOTALL | re.MULTILINE)

BRACKETS = {"(": ")", "[": "]", "{": "}"}


class Source:
    """The text of one file. `code` has its length and line ends, but only what the compiler reads as code."""

    def __init__(self, name, text):
        self.name = name
        self.text = text
        self.literals = []
        self.code = TOKEN.sub(self._blank, text)
        self.line_starts = [0] + [match.end() for match in re.finditer("\n", text)]

    def _blank(self, match):
        found = match.group()
        if match.lastgroup == "literal":
            self.literals.append((match.start(), found))
            return found[0] + "_" * (len(found) - 2) + found[-1]
        return re.sub(r"[^\n]", " ", found)

    def line(self, position):
        """The line at a position, without its indentation."""
        start = self.text.rfind("\n", 0, position) + 1
        end = self.text.find("\n", position)
        return " ".join(self.text[start:end].split())

    def line_number(self, position):
        return self.text.count("\n", 0, position) + 1

    def region(self, position):
        """Start and end of the outermost definition around a position: from one closing brace in the first column to
        the next."""
        closing = self.code.rfind("\n}", 0, position)
        start = closing + 2 if closing >= 0 else 0
        end = self.code.find("\n}", position)
        return start, end if end >= 0 else len(self.code)

    def function(self, position):
        """The name of the definition around a position, or of the constant around it."""
        start, _ = self.region(position)
        head = self.code[start:position]
        opening = head.rfind("\n{")
        if opening >= 0:
            names = re.findall(r"^(?!template|namespace)\S[^;=]*?([\w:~]+)\s*\(", head[:opening], re.MULTILINE)
            if names:
                return names[-1]
        names = re.findall(r"(\w+)(?:\[\])?\s*(?:=|\{)", head.rsplit(";", 1)[-1])
        inner = re.findall(r"(\w+)\([^;{}]*\)[^;{}]*\{", head)
        return names[0] if names else inner[-1] if inner else ""

    def closing(self, position):
        """Where the bracket that opens at a position is closed."""
        depth = 0
        for place in range(position, len(self.code)):
            if self.code[place] in "([{":
                depth += 1
            elif self.code[place] in ")]}":
                depth -= 1
                if depth == 0:
                    return place
        return -1

    def end_of_statement(self, position):
        """Where the statement that begins at a position ends (after its semicolon); -1 for what has a body."""
        place = position
        while place < len(self.code):
            character = self.code[place]
            if character == ";":
                return place + 1
            if character == "{" or character in ")]}":
                return -1
            place = self.closing(place) + 1 if character in "([" else place + 1
        return -1

    def statements(self):
        """Beginnings of lines on which a statement begins."""
        for start in self.line_starts:
            match = re.compile(r"[ \t]+(?=[A-Za-z_+*-])").match(self.code, start)
            if not match:
                continue
            before = self.code[:start].rstrip()
            if before.endswith((";", "{", "}", ")")) or before.endswith("else"):
                yield match.end()
