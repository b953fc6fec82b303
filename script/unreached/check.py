"""Names the lines that no test reaches and that have no explanation: check.py COVERAGE_JSON EXPLANATIONS.

The explanations have a line `file: the source line` each, and the reason in the indented lines after it. One that
explains nothing any more is named, too.
"""

import json
import sys
from pathlib import Path


def unreached(report):
    for file in json.loads(Path(report).read_text())["files"]:
        source = Path(file["file"]).read_text().splitlines()
        for line in file["lines"]:
            if line["count"] == 0 and not line.get("gcovr/noncode"):
                yield f"{file['file']}: {source[line['line_number'] - 1].strip()}"


def explained(explanations):
    for line in Path(explanations).read_text().splitlines():
        if line and not line.startswith((" ", "#")):
            yield line


def main(report, explanations):
    lines, reasons = set(unreached(report)), set(explained(explanations))
    for line in sorted(lines - reasons):
        print(f"not reached: {line}")
    for line in sorted(reasons - lines):
        print(f"reached, though explained: {line}")
    print(f"unreached lines: {len(lines)}, explained: {len(lines & reasons)}")
    return 1 if lines ^ reasons else 0


sys.exit(main(*sys.argv[1:]))
