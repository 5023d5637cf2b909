"""Reads and writes keyed archives with Python's own property lists, for KeyedArchiverTest and KeyedUnarchiverTest.

keyed_archive.py read FILE     prints what the archive holds as one line of JSON, references resolved
keyed_archive.py write FILE FORM     writes an archive of the classes that the tests know; FORM is "binary" or "xml"
"""

import json
import plistlib
import sys
from plistlib import UID


def resolved(objects, value):
    if isinstance(value, UID):
        return None if value.data == 0 else resolved(objects, objects[value.data])
    if not isinstance(value, dict):
        return value
    named = objects[value["$class"].data]
    if named["$classname"] == "NSArray":
        return [resolved(objects, element) for element in value["NS.objects"]]
    if named["$classname"] == "NSDictionary":
        keys = [resolved(objects, key) for key in value["NS.keys"]]
        return dict(zip(keys, [resolved(objects, element) for element in value["NS.objects"]]))
    fields = {key: resolved(objects, field) for key, field in value.items() if key != "$class"}
    return {"classes": named["$classes"], **fields}


def read(path):
    with open(path, "rb") as file:
        archive = plistlib.load(file, fmt=plistlib.FMT_BINARY)
    assert archive["$version"] == 100000 and archive["$archiver"] == "NSKeyedArchiver"
    assert archive["$objects"][0] == "$null"
    print(json.dumps(resolved(archive["$objects"], archive["$top"]["root"]), sort_keys=True))


def write(path, form):
    uid = UID if form == "binary" else lambda number: {"CF$UID": number}
    objects = ["$null",
               {"$class": uid(2), "name": uid(3), "number": 41, "children": uid(4), "table": uid(11), "friend": uid(0)},
               {"$classname": "Node", "$classes": ["Node", "Base", "NSObject"]},
               "r\u00f6\u00f6t",
               {"$class": uid(5), "NS.objects": [uid(6), uid(0), uid(6)]},
               {"$classname": "NSMutableArray", "$classes": ["NSMutableArray", "NSArray", "NSObject"]},
               {"$class": uid(2), "name": uid(7), "number": uid(9), "friend": uid(1)},
               {"$class": uid(8), "NS.string": "child"},
               {"$classname": "NSMutableString", "$classes": ["NSMutableString", "NSString", "NSObject"]},
               -7,
               {"$classname": "NSArray", "$classes": ["NSArray", "NSObject"]},
               {"$class": uid(10), "NS.objects": [uid(12)]},
               {"$class": uid(13), "NS.keys": [uid(14), uid(15)], "NS.objects": [uid(3), uid(9)]},
               {"$classname": "NSMutableDictionary", "$classes": ["NSMutableDictionary", "NSDictionary", "NSObject"]},
               "text",
               "integer"]
    archive = {"$version": 100000, "$archiver": "NSKeyedArchiver", "$top": {"root": uid(1)}, "$objects": objects}
    with open(path, "wb") as file:
        plistlib.dump(archive, file, fmt=plistlib.FMT_BINARY if form == "binary" else plistlib.FMT_XML)


if sys.argv[1] == "read":
    read(sys.argv[2])
else:
    write(sys.argv[2], sys.argv[3])
