#!/usr/bin/env python3
"""Makes a page for a browser of a page of the guide, and fails where one of its links leads nowhere.

    guide_page.py PAGE.md PAGE.html"""

import re
import sys
from pathlib import Path

import markdown
from markdown.extensions.toc import TocExtension, slugify_unicode

PAGE = """<!DOCTYPE html>
<html lang="{language}">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ max-width: 46em; margin: 2em auto; padding: 0 1em; font-family: sans-serif; line-height: 1.5;
       color: #1d232f; background: #fff; }}
a {{ color: #1f5fae; }}
h1, h2, h3 {{ line-height: 1.2; margin-top: 1.8em; }}
img {{ max-width: 100%; height: auto; border: 1px solid #dde3ee; border-radius: 6px; }}
table {{ border-collapse: collapse; display: block; overflow-x: auto; }}
th, td {{ border-bottom: 1px solid #dde3ee; padding: 0.3em 0.6em; text-align: left; vertical-align: top; }}
pre {{ background: #f1f4fa; padding: 0.8em; overflow-x: auto; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def lost_links(source, body):
    """Links to what is not there: a place on the page, another page, a picture."""
    targets = re.findall(r'(?:href|src)="([^":]+)"', body)
    return [target for target in targets if not (
        f'id="{target[1:]}"' in body if target.startswith("#") else
        (source.parent / re.sub(r"\.html(#.*)?$", ".md", target)).is_file())]


def main():
    source, target = map(Path, sys.argv[1:])
    text = source.read_text(encoding="utf-8")
    text = re.sub(r"\]\(([\w.]+)\.md(#[\w-]+)?\)", r"](\1.html\2)", text)
    title = re.match(r"# (.*)", text).group(1)
    body = markdown.markdown(text, extensions=[TocExtension(slugify=slugify_unicode), "tables", "fenced_code", "sane_lists"],
                             output_format="html")
    if lost := lost_links(source, body):
        sys.exit(f"{source} has links that lead nowhere: {' '.join(lost)}")
    language = source.stem.partition(".")[2] or "en"
    target.write_text(PAGE.format(language=language, title=title, body=body), encoding="utf-8")


main()
