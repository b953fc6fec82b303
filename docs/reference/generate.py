#!/usr/bin/env python3
"""Makes what Doxygen reads from the header, the result codes and the data of this folder.

    generate.py --check              whether every method has all of its parts
    generate.py --calvix PROGRAM OUT the input of Doxygen, in the folder OUT; PROGRAM is the host program, which knows
                                     the result codes

The parts of a method, and where each is written down, once:
    purpose, arguments, codes   its comment in include/calvix/wireless_manage.h
    what to do about a code     cli/explain/result_causes.cpp, through `calvix explain`
    platform calls, marks       methods/*.json here
    example                     the body of the function of its name in examples/reference/*.cpp
"""

import json
import pathlib
import re
import subprocess
import sys
import textwrap

sys.dont_write_bytecode = True  # the folder is installed

import records  # noqa: E402

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
HEADER = ROOT / "include/calvix/wireless_manage.h"
# In the order of the main page.
FAMILIES = "adapters networks profiles connections automatic radio system texts manager".split()
# The one argument that the header explains for all methods together.
ADAPTER = ("pInterfaceGuid", "@param[in] pInterfaceGuid GUID of the adapter, as GetWlanInterface lists it")
PAGES = [*sorted((ROOT / "docs/guides").glob("*.md")), *sorted((ROOT / "docs").glob("*.md"))]


class Method:
    """A declaration of the header with its comment, and what this folder knows of it."""

    def __init__(self, comment, declaration):
        self.comment = comment
        self.declaration = declaration
        match = re.match(r"(?:static )?(.*?)([A-Za-z_]\w*|operator=)\((.*)\);$", declaration)
        self.returns, self.name, parameters = match[1].strip(), match[2], match[3]
        self.parameters = [split_parameter(text) for text in split_list(parameters)]
        self.key = f"{self.name}({', '.join(kind for kind, _ in self.parameters)})"
        self.data = {}
        self.family = ""
        self.overloaded = False

    @property
    def label(self):
        """The name, with the arguments where another method has the same one."""
        return self.name + (escaped(self.key[len(self.name):]).replace("*", "&#42;") if self.overloaded else "")

    @property
    def example(self):
        return self.data.get("example", self.name)

    @property
    def target(self):
        parameters = ", ".join(f"{without_order(kind)}" for kind, _ in self.parameters)
        return f"CWirelessManage::{self.name}({parameters})"

    def paragraphs(self):
        """The comment's paragraphs; each of its tags begins one."""
        return re.split(r"\n(?=@)|\n\n+", "\n".join(self.comment))

    def told_codes(self, methods):
        """The codes after @return; "as METHOD" stands for those of that method's first declaration."""
        text = " ".join(paragraph for paragraph in self.paragraphs() if paragraph.startswith("@return"))
        codes = {int(code, 0) for code in re.findall(r"\s(-\d+|0x[0-9A-F]+|1)\s", text)}
        firsts = {method.name: method for method in reversed(list(methods.values()))}
        for name in re.findall(r"\bas\s(\w+)", text):
            if name in firsts and firsts[name] is not self:
                codes |= firsts[name].told_codes(methods)
        return codes


def split_list(text):
    """At the commas that stand in no angle brackets."""
    return [part.strip() for part in re.split(r",(?![^<]*>)", text) if part.strip()]


def split_parameter(text):
    match = re.match(r"(.*?)(\w+)$", text)
    kind = match[1].strip()
    return (re.sub(r"^const ((?:unsigned )?\w+)", r"\1 const", kind), match[2])


def without_order(kind):
    return re.sub(r"^((?:unsigned )?\w+) const", r"const \1", kind)


def read_header():
    """The header's lines, where a method stands as a Method."""
    items, comment, declaration = [], [], ""
    for line in HEADER.read_text(encoding="utf-8").splitlines():
        text = line.strip()
        if declaration or (comment and line.startswith("    ") and "(" in text and not text.startswith("//")) or (
                comment and text in ("int", "char*", "unsigned char*", "unsigned long")):
            declaration += (" " if declaration else "") + text
            if declaration.endswith(";"):
                items.append(Method(comment, declaration))
                comment, declaration = [], ""
        elif text.startswith("///"):
            comment.append(text[3:].strip())
        else:
            items += [f"/// {words}" for words in comment] + [line]
            comment = []
    return items


def load(items):
    """The header's methods with their data; what is missing or too much."""
    problems = []
    methods = {item.key: item for item in items if isinstance(item, Method)}
    names = [method.name for method in methods.values()]
    for method in methods.values():
        method.overloaded = names.count(method.name) > 1
    exports = (ROOT / "tests/binary/exports.txt").read_text(encoding="utf-8").splitlines()
    families = {}
    for name in FAMILIES:
        families[name] = json.loads((HERE / "methods" / f"{name}.json").read_text(encoding="utf-8"))
        for key, data in families[name]["methods"].items():
            if key not in methods:
                problems.append(f"methods/{name}.json: the header declares no {key}")
                continue
            methods[key].data, methods[key].family = data, name
    examples = example_bodies()
    results = (ROOT / "cli/explain/result_codes.cpp").read_text(encoding="utf-8")
    codes = set(re.findall(r'^    \{"([\w=]+)", \w+,', results, re.M))
    for key in sorted(set(exports) ^ set(methods)):
        problems.append(f"{key}: {'exported, but not declared' if key in exports else 'declared, but not exported'}")
    for method in methods.values():
        problems += [f"{method.key}: {problem}" for problem in missing_parts(method, examples, codes)]
    shown = [method.example for method in methods.values()]
    problems += [f"examples/reference: no method shows {name}" for name in sorted(set(examples) - set(shown))]
    problems += [f"the example {name} is shown twice" for name in sorted(examples) if shown.count(name) > 1]
    return methods, families, examples, problems + list(records.problems())


def missing_parts(method, examples, codes):
    if not method.data:
        yield "no entry in methods/*.json"
        return
    if not method.comment or method.comment[0].startswith("@"):
        yield "no comment in the header"
    if "calls" not in method.data:
        yield 'no "calls"'
    said = re.findall(r"^@param\[(?:in|out|in,out)\] (\w+) \S", "\n".join(method.comment), re.M)
    wanted = [name for _, name in method.parameters if name != ADAPTER[0] or name in said]
    if said != wanted:
        yield f"its arguments are {', '.join(wanted) or 'none'}; the comment has {', '.join(said) or 'none'}"
    if any(line.startswith("@return") for line in method.comment) == (method.returns == "void"):
        yield "@return is missing, or too much"
    if method.example not in examples:
        yield f"no function {method.example} in examples/reference"
    if method.name not in codes:
        yield "no entry in cli/explain/result_codes.cpp"


def example_bodies():
    """The bodies of the functions in examples/reference by the functions' names."""
    bodies = {}
    for path in sorted((ROOT / "examples/reference").glob("*.cpp")):
        functions = re.findall(r"^void (\w+)\([^{]*?\)\n{\n(.*?)^}\n", path.read_text(encoding="utf-8"), re.M | re.S)
        for name, body in functions:
            if name in bodies:
                raise SystemExit(f"{path.name}: there are two functions {name}")
            bodies[name] = textwrap.dedent(body).rstrip()
    return bodies


# --- What Doxygen reads --------------------------------------------------------------------------------------------


def escaped(text):
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace("|", "&#124;")


class Links:
    """Turns the names of methods in a text into links."""

    def __init__(self, methods):
        names = {method.name for method in methods.values() if len(re.findall(r"[A-Z0-9]", method.name)) > 1}
        self.methods = {method.name for method in methods.values()}
        longest_first = "|".join(sorted(names, key=len, reverse=True))
        self.pattern = re.compile(rf"(?<![\w`:.\"#])({longest_first})(?![\w`\"(:])")

    def __call__(self, text, own=""):
        return self.pattern.sub(lambda m: m[1] if m[1] == own else self.link(m[1]), text)

    def link(self, name):
        return f'@ref CWirelessManage::{name} "{name}"'


def operation(call):
    """The operation of an entry, whether it is made in some cases only, and the remark behind it."""
    match = re.match(r"(\[?)(\w+)\]?(?: (.*))?$", call)
    return match[2], bool(match[1]), match[3] or ""


def calls_text(method):
    calls = method.data["calls"]
    if not calls:
        yield "@par Platform calls"
        yield "None."
        return
    yield "@par Platform calls"
    for call in calls:
        name, conditional, remark = operation(call)
        if name == "WlanOpenHandle" and not remark:
            remark = "(where the client handle is not open)"
        yield f"- `{name}`{' ' + escaped(remark) if remark else ''}{' <em>(not always)</em>' if conditional else ''}"
    yield ""


def codes_text(method, results, methods):
    """The method's own result codes with what to do about them; overloads share a table, of which each has its part."""
    told = method.told_codes(methods)
    codes = [row for row in results["codes"] if row["code"] in told or row["code"] & 0xFFFFFFFF in told]
    if not codes:
        return
    yield "@par Result codes"
    yield "| Code | Meaning | What to do |"
    yield "|-----:|---------|------------|"
    for row in codes:
        code = row["code"] if not method.returns.startswith("unsigned") else f"0x{row['code'] & 0xFFFFFFFF:X}"
        yield f"| {code} | {escaped(row['meaning'])} | {escaped(row['advice'])} |"
    if results["returns"] == "0 or the platform's error number":
        yield "| other | the platform's error number | `calvix explain` shows what it means |"
    yield ""


def method_comment(method, results, methods, families, examples, links):
    """The comment of the header, then everything else."""
    own = [line for paragraph in method.paragraphs() for line in (*paragraph.split("\n"), "")]
    if any(name == ADAPTER[0] for _, name in method.parameters) and not any(ADAPTER[0] in line for line in own):
        first_tag = next((at for at, line in enumerate(own) if line.startswith("@")), len(own))
        own.insert(first_tag, ADAPTER[1])
    yield from (links(escaped(line), method.name) for line in own)
    if mark := method.data.get("mark"):
        yield "@par Mark"
        yield f'<span class="mark">{mark}</span>'
        yield ""
    if alias := method.data.get("alias"):
        yield "@par Alias"
        yield f"Another name of {links.link(alias)}."
        yield ""
    yield from codes_text(method, results, methods)
    yield from calls_text(method)
    if used := records.records_of(method):
        yield "@par Records"
        yield ", ".join(map(records.record_link, used)) + "."
        yield ""
    yield "@par Example"
    yield "@code{.cpp}"
    yield from examples[method.example].splitlines()
    yield "@endcode"
    yield ""
    yield f'@see @ref family_{method.family} "{families[method.family]["title"]}"'


def write_header(items, results, methods, families, examples, links, out):
    lines, open_section = [], False
    for item in items:
        if isinstance(item, Method):
            comment = method_comment(item, results[item.name], methods, families, examples, links)
            lines += [f"    /// {line}".rstrip() for line in comment]
            lines.append(f"    {item.declaration}")
        elif section := re.match(r"    // --- (.*?) -+$", item):
            lines += ["    /// @}"] if open_section else []
            lines += [f"    /// @name {section[1]}"]
            open_section = True
        elif note := re.match(r"    // (.*)", item):
            lines.append(f"    /// {links(escaped(note[1]))}")
        elif not item and lines[-1].startswith("    ///"):
            lines += ["    /// @{", ""]
        elif item.startswith("private:"):
            lines += ["    /// @}", item]
        else:
            lines.append(item)
    (out / "calvix").mkdir(parents=True, exist_ok=True)
    (out / "calvix/wireless_manage.h").write_text("\n".join(lines) + "\n", encoding="utf-8")


def purpose(method):
    """In one sentence: the first of the header's comment, without the operations that it names in brackets."""
    text = re.sub(r" \([A-Z]\w+(?:, [^()]*)?\)", "", " ".join(method.comment))
    return re.split(r"(?<=[\w)\"])[.:] ", text)[0].rstrip(".") + "."


def write_families(methods, families, results, links, out):
    for name, family in families.items():
        lines = [f"# {family['title']} {{#family_{name}}}", "", links(family["intro"]), "",
                 "| Method | What it does | Returns |", "|--------|--------------|---------|"]
        for key in family["methods"]:
            method = methods[key]
            mark = method.data.get("mark") or (f"alias of {method.data['alias']}" if "alias" in method.data else "")
            mark = f' <span class="mark">{mark}</span>' if mark else ""
            lines.append(f"| @ref {method.target} \"{method.label}\"{mark} | "
                         f"{links(escaped(purpose(method)), method.name)} | {results[method.name]['returns']} |")
        (out / f"family_{name}.md").write_text("\n".join(lines) + "\n", encoding="utf-8")


def write_index(methods, families, links, out):
    lines = ["# Methods from A to Z {#methods}", "", "| Method | What it does | Family |", "|---|---|---|"]
    for method in sorted(methods.values(), key=lambda method: method.name.lower()):
        family = families[method.family]["title"]
        lines.append(f"| @ref {method.target} \"{method.label}\" | {links(escaped(purpose(method)), method.name)} | "
                     f"@ref family_{method.family} \"{family}\" |")
    (out / "methods.md").write_text("\n".join(lines) + "\n", encoding="utf-8")


def slug(heading):
    """As the forges make it."""
    text = re.sub(r"`|\*|\[|\]\([^)]*\)", "", heading).strip().lower()
    return re.sub(r"[^\w\- ]", "", text).replace(" ", "-")


def page_label(path):
    return "page_" + re.sub(r"\W", "_", path.relative_to(ROOT / "docs").with_suffix("").as_posix())


def page_text(path, links):
    """A page of docs/ in Doxygen's terms: labels at the headings, links to labels, names of methods as links."""

    def target(match):
        text, where = match[1], match[2]
        if re.match(r"[a-z]+:", where):
            return match[0]
        file, _, anchor = where.partition("#")
        linked = (path.parent / file).resolve() if file else path
        if linked not in PAGES:
            return text
        return f'@ref {page_label(linked)}{"_" + anchor if anchor else ""} "{text.strip("`")}"'

    lines, fenced, first = [], False, True
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.lstrip().startswith("```"):
            fenced = not fenced
        if fenced or line.lstrip().startswith("```"):
            lines.append(line)
            continue
        if heading := re.match(r"(#+) (.*)", line):
            label = page_label(path) + ("" if first else "_" + slug(heading[2]))
            lines.append(f"{heading[1]} {heading[2].replace('`', '')} {{#{label}}}")
            first = False
            continue
        line = re.sub(r"(`[^`]*`)|@(?=\w)", lambda m: m[1] or "\\@", line)
        line = re.sub(r"(?<!!)\[([^\]]+)\]\(([^)\s]+)\)", target, line)
        line = re.sub(r"`(\w+)`", lambda m: links.link(m[1]) if m[1] in links.methods else m[0], line)
        lines.append(line)
    return "\n".join(lines) + "\n"


def title_of(path):
    return path.read_text(encoding="utf-8").splitlines()[0].lstrip("# ")


def write_pages(families, links, out):
    for path in PAGES:
        (out / f"{page_label(path)}.md").write_text(page_text(path, links), encoding="utf-8")
    text = (HERE / "mainpage.md").read_text(encoding="utf-8")
    text = text.replace("@FAMILIES@", "\n".join(
        f"- @ref family_{name} \"{family['title']}\": {len(family['methods'])} methods"
        for name, family in families.items()))
    # The guides in reading order, each with its line.
    guides = re.findall(r"^\| \[.*\]\((.*)\) \| (.*) \|$", (ROOT / "docs/guides/README.md").read_text(encoding="utf-8"), re.M)
    guides = {ROOT / "docs/guides" / name: line for name, line in guides}
    others = [path for path in PAGES if path.parent.name != "guides"]
    for name, lines in (("@GUIDES@", guides), ("@PAGES@", dict.fromkeys(others))):
        text = text.replace(name, "\n".join(
            f'- @ref {page_label(path)} "{title_of(path)}"' + (f": {line}" if line else "") for path, line in lines.items()))
    (out / "mainpage.md").write_text(text, encoding="utf-8")


def read_results(program):
    """The result codes as the host program explains them, with the kind of result, which its table shows."""


    def said(*arguments):
        return subprocess.run([program, *arguments], check=True, capture_output=True, encoding="utf-8").stdout

    results = {entry["method"]: entry for entry in json.loads(said("explain", "--json"))["methods"]}
    for line in said("explain").splitlines()[1:]:
        name, returns, _ = re.split(r"\s{2,}", line.strip())
        results[name]["returns"] = returns
    return results


def main(arguments):
    items = read_header()
    methods, families, examples, problems = load(items)
    for problem in problems:
        print(f"reference: {problem}", file=sys.stderr)
    if problems:
        return 1
    if arguments == ["--check"]:
        print(f"reference: {len(methods)} methods with all their parts")
        return 0
    if len(arguments) != 3 or arguments[0] != "--calvix":
        print(__doc__, file=sys.stderr)
        return 2
    out = pathlib.Path(arguments[2])
    results = read_results(arguments[1])
    links = Links(methods)
    write_header(items, results, methods, families, examples, links, out)
    write_families(methods, families, results, links, out)
    write_index(methods, families, links, out)
    write_pages(families, links, out)
    records.write(methods.values(), links, out)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
