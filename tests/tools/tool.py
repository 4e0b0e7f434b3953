"""A program of the folder tools, as a module."""
import importlib.machinery
import importlib.util
import pathlib

TOOLS = pathlib.Path(__file__).resolve().parents[2] / "tools"


def load(name):
    loader = importlib.machinery.SourceFileLoader(name, str(TOOLS / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(name, loader))
    loader.exec_module(module)
    return module
