#!/usr/bin/env python3
"""Makes the finished pages searchable: search_index.py HTML

Writes HTML/search_index.js, which search.js searches: every page, the long ones by their sections. Overloads get their
arguments in the lists of methods, where Doxygen gives them all the same name.
"""

import html
import json
import pathlib
import re
import sys

# Lists of what the other pages have.
LEFT_OUT = re.compile(r"(annotated|classes|pages|functions.*|dir_.*|.*_source|.*-members|class_c_wireless_manage)\.html$")
METHOD = "class_c_wireless_manage_a"


def plain(markup):
    markup = re.sub(r"<script.*?</script>", " ", markup, flags=re.S)
    return " ".join(html.unescape(re.sub(r"<[^>]*>", " ", markup)).split())


def arguments(page):
    kinds = re.findall(r'class="paramtype">(.*?)</td>', page)
    return "(" + ", ".join(re.sub(r" (?=[*&>])|(?<=<) ", "", plain(kind)) for kind in kinds) + ")"


def with_arguments(page, overloads):
    """The page with the arguments of overloads in its title and its list of methods."""
    def entry(match):
        return match[0] if match[2] not in overloads else f"{match[1]}{html.escape(overloads[match[2]])}</a>"

    page = re.sub(rf'(<a class="navtab" href="({METHOD}\w+\.html)[^"]*">\w+)</a>', entry, page)
    return re.sub(r'\(\) <span class="overload">\[.*?\]</span>', lambda _: html.escape(arguments(page)), page)


def sections(name, page):
    """(address, title, text) of a page, or of each of its sections."""
    title = plain(re.search(r"<title>(.*?)</title>", page)[1]).removesuffix(" - Calvix").removeprefix("CWirelessManage::")
    start = page.find('class="memdoc"') if name.startswith(METHOD) else page.find('<div class="contents">')
    pieces = re.split(r'<h[1-6]><a class="anchor" id="(\w+)"></a>(.*?)</h[1-6]>', page[page.index(">", start) + 1:], flags=re.S)
    yield name, title, plain(pieces[0])
    for anchor, heading, text in zip(pieces[1::3], pieces[2::3], pieces[3::3]):
        yield f"{name}#{anchor}", f"{plain(heading)} ({title})", plain(text)


def main(folder):
    pages = {path: path.read_text(encoding="utf-8") for path in sorted(folder.glob("*.html"))}
    overloads = {path.name: arguments(page) for path, page in pages.items() if 'class="overload"' in page and METHOD in path.name}
    index = []
    for path, page in pages.items():
        page = with_arguments(page, overloads)
        if path.name in overloads:
            page = re.sub(r"(<title>.*?) - ", lambda match: match[1] + html.escape(overloads[path.name]) + " - ", page)
        path.write_text(page, encoding="utf-8")
        if not LEFT_OUT.match(path.name):
            index += [entry for entry in sections(path.name, page) if entry[2]]
    (folder / "search_index.js").write_text(f"var searchIndex = {json.dumps(index, ensure_ascii=False)};\n", encoding="utf-8")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
