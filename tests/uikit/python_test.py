"""What the Python tests share: CTest counts exit code 77 as skipped."""

import importlib.util
import os
import shutil
import sys
import unittest

SKIPPED = 77


def needs(packages=None, programs=None, files=None):
    """Skips the whole test, and says why, where a Python module, program or file is missing. Each
    is given with the Debian package that has it."""
    missing = [package for module, package in (packages or {}).items()
               if importlib.util.find_spec(module) is None]
    missing += [package for program, package in (programs or {}).items()
                if shutil.which(program) is None]
    missing += [package for file, package in (files or {}).items() if not os.path.exists(file)]
    if missing:
        print('skipped: needs ' + ', '.join(dict.fromkeys(missing)))
        sys.exit(SKIPPED)


LAYOUT_PACKAGES = {
    'packages': {'kiwisolver': 'python3-kiwisolver', 'PIL': 'python3-pil'},
    'files': {'/usr/share/fonts/opentype/inter/Inter-Regular.otf': 'fonts-inter'},
}


def main():
    unittest.main(verbosity=2)
