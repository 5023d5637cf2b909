#!/usr/bin/env python3
"""html5lib of Python as a program of comparisons: the protocols of bench/DriverLoop.hpp and bench/peers/CaseLoop.hpp.

    html5lib_peer.py etree|lxml SECONDS LIST
    html5lib_peer.py etree|lxml --cases

The first word is the library that the tree is made with. html5lib takes a fragment's context as a name only, so that the content of foreign
elements can't be asked of it.
"""
import sys
import time
import warnings

import html5lib
from html5lib import constants, treewalkers

SHOWN_NAMESPACES = {constants.namespaces["svg"]: "svg ", constants.namespaces["mathml"]: "math "}


def attribute_lines(attributes, indent):
    shown = {}
    for (namespace, name), value in attributes.items():
        prefix = constants.prefixes.get(namespace)
        shown["%s %s" % (prefix, name) if prefix else name] = value
    return ['%s%s="%s"' % (indent, name, value) for name, value in sorted(shown.items())]


def tree_text(tree, builder):
    lines, depth, in_text = [], 0, False
    for token in treewalkers.getTreeWalker(builder)(tree):
        kind, indent = token["type"], "| " + "  " * depth
        if kind in ("Characters", "SpaceCharacters"):
            if in_text:
                lines[-1] = lines[-1][:-1] + token["data"] + '"'
            else:
                lines.append('%s"%s"' % (indent, token["data"]))
        elif kind in ("StartTag", "EmptyTag"):
            lines.append("%s<%s%s>" % (indent, SHOWN_NAMESPACES.get(token["namespace"], ""), token["name"]))
            lines += attribute_lines(token["data"], indent + "  ")
            depth += kind == "StartTag"
        elif kind == "EndTag":
            depth -= 1
        elif kind == "Comment":
            lines.append("%s<!-- %s -->" % (indent, token["data"]))
        elif kind == "Doctype":
            public, system = token["publicId"] or "", token["systemId"] or ""
            lines.append("%s<!DOCTYPE %s%s>" % (indent, token["name"] or "", ' "%s" "%s"' % (public, system) if public or system else ""))
        in_text = kind in ("Characters", "SpaceCharacters")
    return "\n".join(lines)


def parser_with(builder):
    # Without fullTree, ElementTree's tree begins at the root, and lacks the document type and the comments beside it.
    return html5lib.HTMLParser(html5lib.getTreeBuilder(builder, **({"fullTree": True} if builder == "etree" else {})))


def answer_cases(builder):
    while head := sys.stdin.buffer.readline():
        size, _, context = head.decode().rstrip("\n").partition(" ")
        markup = sys.stdin.buffer.read(int(size))
        if " " in context:
            sys.stdout.buffer.write(b"-\n")
        else:
            try:
                parser = parser_with(builder)
                tree = (parser.parseFragment(markup, container=context, override_encoding="utf-8") if context
                        else parser.parse(markup, override_encoding="utf-8"))
                text = tree_text(tree, builder).encode("utf-8", "replace")
            except Exception as error:                    # a case that it breaks down at is one that it gets wrong
                text = repr(error).encode()
            sys.stdout.buffer.write(b"%d\n%s" % (len(text), text))
        sys.stdout.buffer.flush()


def measure(builder, seconds, list_file):
    with open(list_file) as paths:
        pages = [open(path, "rb").read() for path in paths.read().split("\n") if path]
    failed = 0

    def one_pass():
        nonlocal failed
        failed = 0
        for page in pages:
            try:
                parser_with(builder).parse(page, override_encoding="utf-8")
            except Exception:
                failed += 1

    one_pass()
    wall, start, passes = time.monotonic(), time.process_time(), 0
    while passes < 2 or time.process_time() - start < seconds:
        one_pass()
        passes += 1
    spent = time.process_time() - start
    print(len(pages), sum(map(len, pages)), passes, "%.6f %.6f" % (time.monotonic() - wall, spent), 0, failed)


def main():
    warnings.simplefilter("ignore", constants.DataLossWarning)
    builder, mode, *rest = sys.argv[1:]
    if mode == "--cases":
        answer_cases(builder)
    else:
        measure(builder, float(mode), *rest)


if __name__ == "__main__":
    main()
