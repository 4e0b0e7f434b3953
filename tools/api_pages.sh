#!/usr/bin/env bash
# Makes the pages of the public interface in build/api/html, from the headers' comments; a warning is
# an error, and so is a link between the pages that leads nowhere. The headers are those that the dev
# preset installs.
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p build/api
mapfile -t headers <build/dev/public_headers.txt
(
  cat docs/Doxyfile
  printf 'INPUT = README.md CONTRIBUTING.md CHANGELOG.md SECURITY.md docs %s\n' "${headers[*]}"
) | doxygen - >build/api/log 2>&1 || { cat build/api/log; exit 1; }
python3 - <<'END'
import pathlib, re, sys
pages = pathlib.Path("build/api/html")
broken = []
for page in pages.glob("*.html"):
    for link in re.findall(r'href="([^"#:]+\.html)(?:#[^"]*)?"', page.read_text(encoding="utf-8")):
        if not (pages / link).exists():
            broken.append(f"{page.name}: {link}")
sys.exit("\n".join(["links that lead nowhere:"] + broken) if broken else 0)
END
echo "build/api/html/index.html: $(ls build/api/html/*.html | wc -l) pages"
