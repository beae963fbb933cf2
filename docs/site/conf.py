"""The guides, the reference of the effects and the other documents as a site. scripts/docs runs it in the root of the project."""

import json
import os
import pathlib
import re
import xml.etree.ElementTree as ElementTree

from docutils import nodes

ROOT = pathlib.Path(__file__).resolve().parents[2]

project = "Ombrel effect settings"
version = release = os.environ["OMBREL_VERSION"]
extensions = ["myst_parser"]
root_doc = "docs/site/index"
include_patterns = ["README.md", "CHANGELOG.md", "CONTRIBUTING.md", "SECURITY.md", "docs/**.md", "packaging/*.md"]
exclude_patterns = ["build*", ".git", "docs/reference/notes", "docs/site/api.md"]  # a build may have links to anywhere
myst_heading_anchors = 6
highlight_language = "text"
suppress_warnings = ["misc.highlighting_failure"]  # examples with "..." are no JSON

html_theme = "furo"
html_title = f"Ombrel effect settings {version}"
html_static_path = ["style.css", "effects.js"]
html_css_files = ["style.css"]
html_copy_source = False
html_show_copyright = False
html_show_sphinx = False
html_additional_pages = {"index": "start.html"}
templates_path = ["."]


def sections():
    """The classes of the reference: page, name, class id and keys."""
    found = []
    for page in sorted((ROOT / "docs/reference").glob("*.md")):
        for part in re.split(r"^(?=## )", page.read_text(), flags=re.M)[1:]:
            heading = re.match(r"## (\w+)\n\n`([^`]+)`, ", part)
            if heading:
                table = re.search(r"^\| Key \|.*\n((?:\|.*\n)*)", part, re.M)
                keys = re.findall(r"^\| `([^`]+)` \|", table[1], re.M) if table else []
                found.append({"page": page.stem, "name": heading[1], "id": heading[2], "keys": keys})
    return found


def resolve_class_ids(app, docname, source):
    """A class has two anchors in the pages. Sphinx knows headings alone, so a link to the class id becomes one to the class."""
    names = {section["id"].lower(): section["name"].lower() for section in app.ombrel_sections}
    source[0] = re.sub(r"(\]\([\w./-]*#)([\w]+)\)", lambda link: f"{link[1]}{names.get(link[2], link[2])})", source[0])


class Interface:
    """Where Doxygen has put what has a name."""

    def __init__(self, tags):
        self.places = {}
        for compound in ElementTree.parse(tags).getroot():
            name = compound.findtext("name")
            place = compound.findtext("filename")
            if compound.get("kind") == "file" and name.endswith(".h"):
                header = pathlib.Path(compound.findtext("path", "")) / name
                self.places[header.relative_to(ROOT / "src").as_posix()] = place
            elif compound.get("kind") in ("class", "struct", "concept"):
                self.add(name, place)
                for member in compound.findall("member"):
                    self.add_member(name, member)
            elif compound.get("kind") == "namespace":
                for member in compound.findall("member"):
                    self.add_member(name, member)

    def add_member(self, scope, member):
        self.add(f"{scope}::{member.findtext('name')}", f"{member.findtext('anchorfile')}#{member.findtext('anchor')}")

    def add(self, name, place):
        """Under its full name and every shorter one, unless that means something else too."""
        self.places.setdefault(name, place)
        while "::" in name:
            name = name.split("::", 1)[1]
            if name in self.places and self.page(self.places[name]) != self.page(place):
                place = None
            if name not in self.places or place is None:
                self.places[name] = place

    @staticmethod
    def page(place):
        return place and place.split("#")[0]

    def find(self, text):
        include = re.fullmatch(r'(?:#include )?"?([\w/]+\.h)"?', text)
        if include:
            return self.places.get(include[1])
        name = re.fullmatch(r"((?:\w+::)*[A-Z]\w+)(?:\(\))?", text)
        return self.places.get(name[1]) if name else None


def link_interface(app, doctree, docname):
    """Names of the interface that stand as code in a text lead to its pages."""
    if docname in ("CHANGELOG", "docs/decisions"):  # which name what may be gone
        return
    up = "../" * docname.count("/")
    for literal in list(doctree.findall(nodes.literal)):
        parent = literal.parent
        if isinstance(parent, (nodes.title, nodes.reference)):
            continue
        place = app.ombrel_interface.find(literal.astext())
        if place:
            reference = nodes.reference("", "", refuri=f"{up}api/{place}", internal=True)
            parent.replace(literal, reference)
            reference += literal


def write_effects(app, exception):
    """What the page "Find an effect" searches."""
    if not exception:
        text = f"const EFFECTS = {json.dumps(app.ombrel_sections)};\n"
        (pathlib.Path(app.outdir) / "_static/effects-data.js").write_text(text)


def setup(app):
    app.ombrel_sections = sections()
    app.ombrel_interface = Interface(os.environ["OMBREL_TAGS"])
    app.connect("source-read", resolve_class_ids)
    app.connect("doctree-resolved", link_interface)
    app.connect("build-finished", write_effects)
