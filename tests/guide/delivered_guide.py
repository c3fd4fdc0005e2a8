"""The help file that the build delivers is a PDF of many pages with pictures. Usage: delivered_guide.py FILE.pdf."""
import pathlib
import re
import sys

LEAST_PAGES = 20
LEAST_PICTURES = 10


def findings(content):
    if not content.startswith(b"%PDF-"):
        yield "no PDF"
        return
    pages = len(re.findall(rb"/Type\s*/Page\b", content))
    pictures = len(re.findall(rb"/Subtype\s*/Image\b", content))
    if pages < LEAST_PAGES:
        yield f"{pages} pages"
    if pictures < LEAST_PICTURES:
        yield f"{pictures} pictures"
    if b"%%EOF" not in content[-32:]:
        yield "cut off"


if __name__ == "__main__":
    found = list(findings(pathlib.Path(sys.argv[1]).read_bytes()))
    print("\n".join(found) or "The guide is delivered.")
    sys.exit(1 if found else 0)
