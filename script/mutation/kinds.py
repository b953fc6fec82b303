"""The ways in which the mutation check breaks a source. Each takes a Source and yields changes (start, end, text, what):
the text between start and end is replaced, `what` says so in a few words."""

import re

OWNERS = r"(?:InterfaceList|NetworkList|ProfileList|BssList|ConnectionAttributes|ProfileText|ObjectHandle|SchemeGuid" \
         r"|WlanMemory<\w+>)"
RELEASES = re.compile(r"\b(Release|WlanFreeMemory|LocalFree|CloseHandle|CloseServiceHandle|WlanCloseHandle|va_end)\(")
NO_CALL = re.compile(
    r"(return|if|for|while|do|switch|case|default|using|const|constexpr|static|namespace|class|struct|enum|template|public"
    r"|private|break|continue|static_assert|typedef|else|inline|virtual|explicit|friend|extern|alignas|goto|delete)\b")
DECLARATION = re.compile(r"[\w:]+(<[^;()]*>)?[ &*]+\w+\s*(\(|\{|=|;|\[)")


def replaced(match, new, what=None, group=0):
    old = match.group(group)
    return match.start(group), match.end(group), new, what or f"{old.strip()} -> {new.strip() or 'nothing'}"


def codes_of(source, position):
    start, end = source.region(position)
    found = re.findall(r"(?:return|=|\?|:)\s*(-\d+)\b", source.code[start:end])
    return sorted({int(code) for code in found})


CODE = re.compile(r"(?:\breturn |\.\w+ = |\bresult = | \? | : |constexpr long k\w+ = )(-?\d+)(?=[;,}) ])")


def code_off_by_one(source):
    """A result code is its neighbour."""
    for match in CODE.finditer(source.code):
        code = int(match.group(1))
        yield replaced(match, str(code - 1 if code < 0 else code + 1), group=1)


def other_code(source):
    """A result code is another one of the same method."""
    for match in CODE.finditer(source.code):
        code = int(match.group(1))
        others = [other for other in codes_of(source, match.start()) if other != code]
        # The neighbour below is what code_off_by_one makes.
        others = [other for other in others if other != (code - 1 if code < 0 else code + 1)]
        if others:
            yield replaced(match, str(others[abs(code) % len(others)]), group=1)


def comparison(source):
    """A comparison is another one."""
    turned = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"}
    for match in re.finditer(r" (==|!=|<=|>=|<|>) ", source.code):
        if re.search(r"operator$|template", source.code[max(0, match.start() - 9):match.start()]):
            continue
        yield replaced(match, turned[match.group(1)], group=1)


def negated(source):
    """A condition is its opposite."""
    for match in re.finditer(r"\b(if|while) \(", source.code):
        opening = match.end() - 1
        closing = source.closing(opening)
        condition = source.text[opening + 1:closing]
        declared = re.match(r"\s*(?:const )?[\w:]+\*? (?:const )?(\w+) =[^;]*$", condition, re.DOTALL)
        if declared:
            yield closing, closing, f"; !({declared.group(1)})", f"{declared.group(1)} -> !{declared.group(1)}"
            continue
        start = opening + 1 + (condition.rfind(";") + 1)
        yield start, closing, f" !({source.text[start:closing].strip()})", f"{match.group(1)} -> {match.group(1)} not"


def choice(source):
    """The two results of a conditional expression are exchanged."""
    for match in re.finditer(r"\s\? ", source.code):
        depth, colon, place = 0, -1, match.end()
        while place < len(source.code):
            character = source.code[place]
            if depth == 0 and source.code.startswith(" : ", place) and colon < 0:
                colon = place
            if character in "([{":
                depth += 1
            elif character in ")]}":
                depth -= 1
            if depth < 0 or (depth == 0 and character in ";,"):
                break
            place += 1
        if colon < 0:
            continue
        one, other = source.text[match.end():colon], source.text[colon + 3:place]
        yield match.end(), place, f"{other} : {one}", "? : exchanged"


def logic(source):
    """An and is an or, an or an and."""
    for match in re.finditer(r"(&&|\|\|)", source.code):
        if source.code[match.end()] not in " \n":
            continue
        yield replaced(match, "||" if match.group() == "&&" else "&&")


def arithmetic(source):
    """A plus is a minus, a step goes the other way."""
    turned = {"+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+=", "++": "--", "--": "++", ">>": "<<"}
    for match in re.finditer(r"(?<=[\w)\]]) (\+|-|\*|/|\+=|-=|>>) (?=[\w(])|(\+\+|--)", source.code):
        group = 1 if match.group(1) else 2
        yield replaced(match, turned[match.group(group)], group=group)


def constant(source):
    """A number is one more."""
    for match in re.finditer(r"(?<![\w.\"'-])(0x[0-9A-Fa-f]+|\d+)(?=U?\b)(?!\.)", source.code):
        before = source.code[max(0, match.start() - 24):match.start()]
        if CODE.match(source.code, max(0, match.start() - 9)) or re.search(r"return $|LocalTrace<$|\) = $", before):
            continue
        digits = match.group()
        more = hex(int(digits, 16) + 1) if digits.startswith("0x") else str(int(digits) + 1)
        yield replaced(match, more)


def flag(source):
    """A bit, a mask or a named flag is dropped."""
    for match in re.finditer(r"\b([A-Z]\w+) \| ([A-Z]\w+)", source.code):
        yield replaced(match, match.group(1), f"{match.group(2)} dropped")
        yield replaced(match, match.group(2), f"{match.group(1)} dropped")
    for match in re.finditer(r" & (0x\w+|[A-Z_]{6,})\b", source.code):
        yield replaced(match, "", f"& {match.group(1)} dropped")
    for match in re.finditer(r"(?<=[(, ])((?:[A-Z][A-Z0-9]*_)[A-Z0-9_]+|INFINITE)(?=[,;)])", source.code):
        yield replaced(match, "0")


def truth(source):
    """A truth value is the other one."""
    turned = {"true": "false", "false": "true", "TRUE": "FALSE", "FALSE": "TRUE"}
    for match in re.finditer(r"\b(true|false|TRUE|FALSE)\b", source.code):
        yield replaced(match, turned[match.group()])


def enumerator(source):
    """One of the platform's enumerators is its neighbour."""
    turned = {"dot11_radio_state_on": "dot11_radio_state_off", "dot11_radio_state_off": "dot11_radio_state_on",
              "dot11_BSS_type_any": "dot11_BSS_type_infrastructure",
              "wlan_interface_state_connected": "wlan_interface_state_disconnected",
              "wlan_interface_state_disconnected": "wlan_interface_state_connected"}
    names = r"\b(wlan_intf_opcode_\w+|wlan_autoconf_opcode_\w+|SystemPowerPolicy\w+|Last\w+Time(?=,)|WalkEnd::\w+|" + \
        "|".join(turned) + r")\b"
    for match in re.finditer(names, source.code):
        name = match.group()
        if name.startswith("wlan_intf_opcode"):
            new = "wlan_intf_opcode_bss_type" if not name.endswith("bss_type") else "wlan_intf_opcode_rssi"
        elif name.startswith("wlan_autoconf"):
            new = "wlan_autoconf_opcode_only_use_gp_profiles_for_allowed_networks"
        elif name.startswith("SystemPowerPolicy"):
            new = "SystemPowerPolicyDc" if name.endswith("Ac") else "SystemPowerPolicyAc"
        elif name.startswith("Last"):
            new = "LastSleepTime" if name == "LastWakeTime" else "LastWakeTime"
        elif name.startswith("WalkEnd"):
            new = "WalkEnd::refused" if not name.endswith("refused") else "WalkEnd::noMatch"
        else:
            new = turned[name]
        yield replaced(match, new)


def text(source):
    """A text is another one: the case of a letter, a digit, or a character more."""
    for start, literal in source.literals:
        quote = literal.index('"') if '"' in literal else -1
        if quote < 0:
            continue
        plain = re.sub(r"%[-.*0-9]*(?:ls|l?[a-zA-Z])|\\.", lambda found: " " * len(found.group()), literal)
        letter = re.search(r"[A-Za-z]", plain[quote:])
        digit = re.search(r"\d", plain[quote:])
        if letter:
            place = quote + letter.start()
            new = literal[:place] + literal[place].swapcase() + literal[place + 1:]
        elif digit:
            place = quote + digit.start()
            new = literal[:place] + str((int(literal[place]) + 1) % 10) + literal[place + 1:]
        else:
            new = literal[:-1] + '?"'
        yield start, start + len(literal), new, f"{literal} -> {new}"


def number_form(source):
    """A number in a text is written in another form."""
    turned = {"%u": "%d", "%d": "%u", "%02X": "%02x", "%08X": "%X", "%04X": "%X", "%ld": "%lu", "%lu": "%ld", "0x%x": "%x",
              "%i": "%u"}
    for start, literal in source.literals:
        # Numbers in brackets are places in a list, far from where the forms differ.
        match = re.search(rf"(?<!\[)(?:{'|'.join(turned)})", literal)
        if match:
            new = turned[match.group()]
            yield start + match.start(), start + match.end(), new, f"{match.group()} -> {new} in {literal}"


def buffer(source):
    """A trace goes through the other kind of buffer."""
    for match in re.finditer(r"\b(LocalTrace<\w+>|SharedTrace)(?= \w+;)", source.code):
        yield replaced(match, "SharedTrace" if match.group().startswith("Local") else "LocalTrace<256>")


def leak(source):
    """What an owner holds at the end of its scope is not released."""
    for match in re.finditer(rf"^[ \t]+((?:const )?)({OWNERS}) (\w+)(\([^;]*\))?;", source.code, re.MULTILINE):
        if not re.search(r"\n\{|\n[^\n]*\)\s*\{", source.code[source.region(match.start())[0]:match.start()]):
            continue
        const, owner, name, arguments = match.groups()
        arguments = source.text[match.start(4):match.end(4)] if arguments else ""
        start = match.start(2)
        yield start, match.end(), f"{owner}& {name} = *new {owner}{arguments};", f"{owner} {name} not released"


def skipped(source):
    """A statement is left out."""
    for start in source.statements():
        end = source.end_of_statement(start)
        if end < 0:
            continue
        statement = source.code[start:end]
        if re.match(r"return\b", statement):
            yield start, end, "{}", "return left out"
        elif re.match(r"(continue|break)\b", statement):
            yield start, end, "{}", f"{statement[:-1]} left out"
        elif re.match(r"delete\b", statement) or not (NO_CALL.match(statement) or DECLARATION.match(statement)):
            if RELEASES.search(statement) or statement.startswith("delete"):
                yield start, end, "{}", "release left out"
            elif re.search(r"[\w)\]] (=|\+=|-=|\*=|/=) ", re.sub(r"\(.*\)", "", statement, flags=re.DOTALL)):
                yield start, end, "{}", "assignment left out"
            elif "(" in statement or re.match(r"(\+\+|--)", statement):
                yield start, end, "{}", "call left out"


KINDS = {
    "code": code_off_by_one, "other code": other_code, "comparison": comparison, "negated": negated, "choice": choice,
    "logic": logic, "arithmetic": arithmetic, "constant": constant, "flag": flag, "truth": truth,
    "enumerator": enumerator, "text": text, "number form": number_form, "buffer": buffer, "leak": leak,
    "skipped": skipped,
}
