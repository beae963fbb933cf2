"""Follows every internal link: of the site's pages and search results, and of the Markdown files of the project.

    check_links.py SITE FILE.md...
"""

import html.parser
import pathlib
import re
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    """The anchors of a page and where its links lead."""

    def __init__(self, text):
        super().__init__()
        self.anchors = set()
        self.links = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id" or (name == "name" and tag == "a"):
                self.anchors.add(value)
            elif name in ("href", "src") and value:
                self.links.append(value)


def markdown_page(text):
    """The same of a Markdown file, with the anchors that headings get where repositories are shown."""
    text = re.sub(r"^(```+).*?^\1$", "", text, flags=re.M | re.S)
    page = Page(re.sub(r"`[^`\n]*`", "", text))
    for heading in re.findall(r"^#+ (.+)$", text, re.M):
        anchor = re.sub(r"[^\w\- ]", "", re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", heading)).lower().replace(" ", "-")
        page.anchors.add(anchor)
    page.links += re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`\n]*`", "", text))
    return page


def read(path):
    text = path.read_text(encoding="utf-8")
    if path.suffix == ".html":
        return Page(text)
    if path.suffix == ".md":
        return markdown_page(text)
    page = Page("")
    page.links = re.findall(r"'(\.\./[^']+\.html[^']*)'", text)  # what Doxygen's search offers
    return page


def main():
    site = pathlib.Path(sys.argv[1]).resolve()
    sources = sorted(site.rglob("*.html")) + sorted((site / "api/search").glob("*.js")) + [pathlib.Path(name).resolve() for name in sys.argv[2:]]
    pages = {path: read(path) for path in sources}
    followed = 0
    broken = []
    for path, page in pages.items():
        for link in page.links:
            parts = urllib.parse.urlsplit(link)
            if parts.scheme or parts.netloc:
                continue
            followed += 1
            target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
            anchor = urllib.parse.unquote(parts.fragment)
            if not target.exists():
                broken.append(f"{path}: {link}: there is no such file")
            elif anchor and target in pages and anchor not in pages[target].anchors:
                broken.append(f"{path}: {link}: there is no such place in the file")
    for line in sorted(set(broken)):
        print(line)
    print(f"links: {followed} followed in {len(pages)} files, {len(broken)} broken")
    sys.exit(1 if broken or not followed else 0)


if __name__ == "__main__":
    main()
