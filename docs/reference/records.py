"""The pages of the reference that tell what a host meets besides methods: records, reason codes and notification codes.

Where their parts are written down, once:
    records                 include/calvix/records/*.h
    reason codes            their names and numbers there, their meanings in platforms/simulation/reason_texts.cpp,
                            what to do in cli/explain/reason_words.cpp
    notification codes      their names and numbers there, their meanings in notifications.json here
"""

import json
import pathlib
import re

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
NOTIFICATIONS = json.loads((HERE / "notifications.json").read_text(encoding="utf-8"))
# What the service passes to the host's own function; no method's signature names it.
CALLBACK_RECORDS = ["L2_NOTIFICATION_DATA", "WLAN_NOTIFICATION_ACM", *(data for _, data in NOTIFICATIONS.values())]


def header(name):
    return (ROOT / f"include/calvix/records/{name}.h").read_text(encoding="utf-8")


def read_records():
    """The declarations of all structures and enumerations by name, each with the comment above it."""
    text = "\n".join(header(path.stem) for path in sorted((ROOT / "include/calvix/records").glob("*.h")))
    text += (ROOT / "include/calvix/wireless_manage.h").read_text(encoding="utf-8")
    found = re.finditer(r"((?:^//[^\n]*\n)*)^((?:struct|enum) (\w+)[^;{\n]*\n\{\n.*?^\};)", text, re.M | re.S)
    return {match[3]: (" ".join(match[1].replace("//", "").split()), match[2]) for match in found if match[3] != "GUID"}


def records_of(method):
    """The records in a method's signature, and those that they contain."""
    text = " ".join(kind for kind, _ in method.parameters)
    return [name for name in RECORDS if re.search(rf"\b{name}\b", text)]


RECORDS = read_records()


def record_link(name):
    return f'@ref record_{name} "{name}"'


def reached_records(methods):
    names = [name for method in methods for name in records_of(method)] + [name for name in CALLBACK_RECORDS if name in RECORDS]
    for name in names:
        names += [other for other in RECORDS if re.search(rf"\b{other}\b", RECORDS[name][1]) and other not in names]
    return sorted(set(names))


def write_records(methods, links, out):
    lines = ["# Records {#records}", "", "The records and enumerations in the signatures of the methods and in notifications. "
             "On Windows they come from the system's own headers, elsewhere from Calvix.", ""]
    for name in reached_records(methods):
        comment, declaration = RECORDS[name]
        users = sorted({method.name for method in methods if name in records_of(method)})
        parts = [other for other in RECORDS if re.search(rf"\b{other}\b", declaration) and other != name]
        lines += [f"## {name} {{#record_{name}}}", "", comment, "", "```cpp", declaration, "```", ""]
        if parts:
            lines += ["Contains " + ", ".join(map(record_link, parts)) + ".", ""]
        if users:
            lines += ["Used by " + ", ".join(map(links.link, users)) + ".", ""]
    (out / "records.md").write_text("\n".join(lines) + "\n", encoding="utf-8")


def text_rows(path, prefix=""):
    """The rows {CODE, "text", ...} of a table in a source; a text may be a constant of that source."""
    source = re.sub(r'"\s*\n\s*"', "", (ROOT / path).read_text(encoding="utf-8"))
    constants = dict(re.findall(r'(k\w+) =\s*("[^"]*")', source))
    value = rf'{prefix}("(?:[^"\\]|\\.)*"|k\w+)'
    for row in re.finditer(rf"\{{(WLAN_REASON_CODE_\w+),\s*{value}(?:,\s*{value})?\}}", source):
        yield row[1], *(constants.get(text, text).strip('"') for text in row.groups()[1:] if text)


def write_reasons(links, out):
    meanings = dict(text_rows("platforms/simulation/reason_texts.cpp", "L"))
    advice = {code: (meaning, what) for code, meaning, what in text_rows("cli/explain/reason_words.cpp")}
    lines = ["# Reason codes {#reasons}", "", "Why the service did not make a connection, ended it, or rejected a profile: "
             "`wlanReasonCode` of a @ref record_WLAN_CONNECTION_NOTIFICATION_DATA \"notification\", and what "
             + links("GetNotConnectableReason") + " writes. " + links("ReasonCode2String") + " gives the service's own text; "
             "on Windows it is in the user's language.", ""]
    for line in header("wlan_reason_codes").split("#endif\n", 1)[1].splitlines():
        if group := re.match(r"// (.*)", line):
            lines += ["", f"## {group[1]}", "", "| Code | Number | Meaning | What to do |", "|---|---|---|---|"]
        elif code := re.match(r"inline constexpr DWORD (\w+) = (\w+);", line):
            if not lines[-1].startswith("|"):
                lines += ["| Code | Number | Meaning | What to do |", "|---|---|---|---|"]
            own, what = advice.get(code[1], ("", ""))
            meaning = own or meanings.get(code[1], "").rstrip(".")
            lines.append(f"| `{code[1]}` | {code[2]} | {meaning[:1].upper() + meaning[1:]} | {what} |")
    (out / "reasons.md").write_text("\n".join(lines) + "\n", encoding="utf-8")


def notification_codes():
    return re.findall(r"wlan_notification_acm_(\w+) = (\d+)", header("wlan_notifications"))[1:-1]


def write_notifications(links, out):
    lines = ["# Notification codes {#notifications}", "", "The function that " + links("RegisterNotification") + " registers "
             "is called with a @ref record_L2_NOTIFICATION_DATA \"WLAN_NOTIFICATION_DATA\", on a thread of the service. Its "
             "`NotificationSource` is `WLAN_NOTIFICATION_SOURCE_ACM`, its `NotificationCode` one of these, each with "
             "`wlan_notification_acm_` before its name. `pData` points to the record in the last column.", "",
             "| Code | Number | When | Data |", "|---|---|---|---|"]
    for name, number in notification_codes():
        meaning, data = NOTIFICATIONS[name]
        lines.append(f"| `{name}` | {number} | {meaning} | {record_link(data) if data in RECORDS else data} |")
    (out / "notifications.md").write_text("\n".join(lines) + "\n", encoding="utf-8")


def problems():
    known = [name for name, _ in notification_codes()]
    for name in sorted(set(known) ^ set(NOTIFICATIONS)):
        yield f"notifications.json: {'no' if name in known else 'not a code:'} {name}"


def write(methods, links, out):
    write_records(methods, links, out)
    write_reasons(links, out)
    write_notifications(links, out)
