"""Turns the guide into a page for a browser: guide_html.py guide.md guide.html"""
import re
import sys

import markdown
from markdown.extensions.toc import slugify_unicode

STYLE = """
:root { color-scheme: light dark; }
body { max-width: 52rem; margin: 2rem auto; padding: 0 1rem; font: 1rem/1.5 sans-serif; }
h1, h2, h3 { line-height: 1.2; margin-top: 2rem; }
img { max-width: 100%; height: auto; border: 1px solid #8886; }
table { border-collapse: collapse; margin: 1rem 0; }
th, td { border: 1px solid #8888; padding: .3rem .6rem; text-align: left; vertical-align: top; }
code, pre { font-family: monospace; background: #8882; padding: 0 .2rem; }
"""

with open(sys.argv[1], encoding="utf-8") as source:
    texte = markdown.markdown(
        # The other documents are no pages: beside this one lies their plain text.
        re.sub(r"\[([^]]+\.md)\]\(\1\)", r"\1", source.read()),
        extensions=["tables", "toc", "sane_lists", "fenced_code"],
        extension_configs={"toc": {"slugify": slugify_unicode}},
        output_format="html",
    )
with open(sys.argv[2], "w", encoding="utf-8") as page:
    page.write(
        '<!DOCTYPE html>\n<html lang="fr">\n<head>\n<meta charset="utf-8">\n'
        '<meta name="viewport" content="width=device-width">\n'
        f"<title>Orvalis : guide de l'opérateur</title>\n<style>{STYLE}</style>\n</head>\n"
        f"<body>\n{texte}\n</body>\n</html>\n"
    )
