"""Binds the chapters of the manual:  manual.py DOCS PICTURES OUT

DOCS holds the chapters, in the order of their names, the style, and PICTURES what they show. OUT gets
vantora-ordini-manuale.html, one file that needs no other, and vantora-ordini-manuale.pdf.

Beside plain Markdown the chapters use: a picture alone in its paragraph, which gets a caption
and may say how it is shown (#large, #small, #top: its upper half, #sheet: that of a printed page, #box: the question alone, #paper);
[[Ctrl+N]] for keys; {nuovo} for the icon of a command; "> **Attenzione.**" for what must not be missed.
"""

import base64
import io
import pathlib
import re
import sys

import markdown
import weasyprint
from PIL import Image

NAME = "vantora-ordini-manuale"
TITLE = "Vantora Ordini"


# What of a picture is shown, as shares of its width and height: left, top, right, bottom.
PARTS = {"top": (0, 0, 1, 0.5), "sheet": (0, 0, 1, 0.45)}


def data_of(path, part):
    if path.suffix == ".svg":
        return f"data:image/svg+xml;base64,{base64.b64encode(path.read_bytes()).decode()}"
    # Windows have few colours: a palette makes a third of the size.
    source = Image.open(path)
    picture = source.convert("RGB")
    if part == "box":
        left, top, width, height = map(int, source.text["Box"].split())
        picture = picture.crop((left, top, left + width, top + height))
    if part in PARTS:
        sides = zip(PARTS[part], picture.size * 2)
        picture = picture.crop([round(share * whole) for share, whole in sides])
    small = io.BytesIO()
    picture.quantize(256, dither=Image.Dither.NONE).save(small, "png")
    return f"data:image/png;base64,{base64.b64encode(small.getvalue()).decode()}"


def keys(found):
    return "+".join(f"<kbd>{key}</kbd>" for key in found[1].split("+"))


def figure(found):
    caption, source = found[1], found[2]
    look = source.partition("#")[2] or "whole"
    picture = f'<img src="{source}" alt="{caption}"/>'
    return f'<figure class="{look}">{picture}<figcaption>{caption}</figcaption></figure>'


def body_of(docs, icons):
    def icon(found):
        known = (icons / f"{found[1]}.svg").exists()
        return f'<img class="icon" alt="" src="icon:{found[1]}"/>' if known else found[0]

    chapters = [path.read_text(encoding="utf-8") for path in sorted(docs.glob("[0-9]*.md"))]
    text = re.sub(r"\[\[(.+?)\]\]", keys, "\n\n".join(chapters))
    text = re.sub(r"\{([a-z_]+)\}", icon, text)
    reader = markdown.Markdown(
        extensions=["extra", "toc", "sane_lists"], extension_configs={"toc": {"toc_depth": "1-2"}}
    )
    html = reader.convert(text)
    html = re.sub(r'<p><img alt="([^"]*)" src="([^"]*)" ?/></p>', figure, html)
    care = "<blockquote>\n<p><strong>Attenzione"
    return reader.toc, html.replace(care, care.replace("<blockquote>", '<blockquote class="care">'))


def with_pictures(html, pictures, icons):
    def put(found):
        source, _, part = found[1].partition("#")
        path = icons / f"{source[5:]}.svg" if source.startswith("icon:") else pictures / source
        return f'src="{data_of(path, part)}"'

    return re.sub(r'src="([^"]*)"', put, html)


def main(docs, pictures, out):
    icons = docs.parent / "src/desktop/look/icons"
    toc, html = body_of(docs, icons)
    build = (docs.parent / "CMakeLists.txt").read_text(encoding="utf-8")
    version = re.search(r"project\(.*VERSION ([0-9.]+)", build)[1]
    cover = (docs / "cover.html").read_text(encoding="utf-8").replace("{version}", version)
    page = (
        f'<!DOCTYPE html>\n<html lang="it"><head><meta charset="utf-8"/><title>{TITLE} - Manuale</title>'
        '<meta name="viewport" content="width=device-width"/>'
        f'<style>{(docs / "manual.css").read_text(encoding="utf-8")}</style></head><body>{cover}'
        f'<nav><p class="contents">Indice</p>{toc}</nav><main>{html}</main></body></html>'
    )
    page = with_pictures(page, pictures, icons)
    (out / f"{NAME}.html").write_text(page, encoding="utf-8")
    weasyprint.HTML(string=page).write_pdf(out / f"{NAME}.pdf", optimize_size=("fonts", "images"), variant="pdf/ua-1")


if __name__ == "__main__":
    main(*(pathlib.Path(argument).resolve() for argument in sys.argv[1:4]))
