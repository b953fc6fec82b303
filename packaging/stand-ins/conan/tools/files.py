import fnmatch
import os
import shutil


def copy(recipe, pattern, src, dst):
    copied = []
    top = pattern.split("/")[0] if "/" in pattern else "."
    for folder, _, names in os.walk(os.path.join(src, top)):
        for name in names:
            relative = os.path.relpath(os.path.join(folder, name), src)
            if fnmatch.fnmatch(relative, pattern):
                os.makedirs(os.path.dirname(os.path.join(dst, relative)), exist_ok=True)
                shutil.copy2(os.path.join(src, relative), os.path.join(dst, relative))
                copied.append(relative)
        if top == ".":
            break
    assert copied, f"nothing matches {pattern}"
    return copied


def rmdir(recipe, path):
    shutil.rmtree(path)
