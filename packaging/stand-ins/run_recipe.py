"""Runs the Conan recipe step by step: run_recipe.py RECIPE WORK HEADERS."""

import importlib.util
import os
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))


def main(recipe_file, work, headers):
    spec = importlib.util.spec_from_file_location("recipe", recipe_file)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    recipe = module.CalvixConan(os.path.dirname(os.path.abspath(recipe_file)), work, headers)
    for step in ("export_sources", "requirements", "validate", "layout", "generate", "build", "package", "package_info"):
        print(f"recipe: {step}", flush=True)
        getattr(recipe, step)()
    assert recipe.cpp_info.libs == ["calvix"]
    assert len(recipe.required) == 4
    print(f"recipe: calvix {recipe.version}, made with {', '.join(recipe.required)}")


main(*sys.argv[1:])
