#!/usr/bin/env python3
"""Reads and writes libraries with Python's own property list module, apart from the program's code.

    check-library.py outline FILE   checks the form of a stored library and prints its tree
    check-library.py make FILE      writes a library in the original platform's form
    check-library.py legacy FILE    writes a library in the first versions' form
    check-library.py states FILE    prints a feed's stored read states
    check-library.py odd FILE NAME  writes a damaged or foreign library
"""
import plistlib
import sys

UID = plistlib.UID
UUID_TEXT = "C0FFEE00-1234-4321-8888-0123456789AB"


class Reader:
    """Follows the references of a keyed archive."""

    def __init__(self, archive):
        assert archive["$version"] == 100000 and archive["$archiver"] == "NSKeyedArchiver", archive.keys()
        assert set(archive) == {"$version", "$archiver", "$top", "$objects"}, archive.keys()
        self.objects = archive["$objects"]
        assert self.objects[0] == "$null"
        self.root = self.at(archive["$top"]["root"])

    def at(self, uid):
        assert isinstance(uid, UID), uid
        return self.objects[uid.data]

    def class_of(self, instance):
        names = self.at(instance["$class"])
        assert names["$classname"] == names["$classes"][0] and names["$classes"][-1] == "NSObject", names
        return names["$classes"]

    def array(self, uid):
        instance = self.at(uid)
        assert self.class_of(instance)[0] == "NSArray", instance
        return [self.at(element) for element in instance["NS.objects"]]

    def outline(self, instance, depth=0):
        classes = self.class_of(instance)
        keys = set(instance) - {"$class"}
        indent = "  " * depth
        if classes == ["FeedGroup", "Feed", "NSObject"]:
            assert keys == {"groupName", "groupList"}, keys
            print(f"{indent}group {self.at(instance['groupName'])}")
            for child in self.array(instance["groupList"]):
                self.outline(child, depth + 1)
        elif classes == ["FeedItem", "Feed", "NSObject"]:
            assert keys == {"feedName", "feedURL", "feedRefreshrate", "feedUsername", "feedUUID"}, keys
            rate = instance["feedRefreshrate"]
            assert isinstance(rate, int), rate
            texts = [self.at(instance[key]) for key in ("feedName", "feedURL", "feedUsername", "feedUUID")]
            assert all(isinstance(text, str) for text in texts), texts
            print(f"{indent}item {rate} {' | '.join(texts)}")
        else:
            assert classes == ["FeedSeparator", "Feed", "NSObject"] and not keys, (classes, keys)
            print(f"{indent}separator")


class Writer:
    """Builds a keyed archive as the original platform does: classes after their first instance, texts shared."""

    def __init__(self):
        self.objects = ["$null"]
        self.known = {}

    def add(self, value):
        self.objects.append(value)
        return UID(len(self.objects) - 1)

    def shared(self, key, make):
        if key not in self.known:
            self.known[key] = self.add(make())
        return self.known[key]

    def text(self, value):
        return self.shared(("text", value), lambda: value)

    def instance(self, classes, fields):
        place = self.add(None)
        made = {key: make() for key, make in fields.items()}
        made["$class"] = self.shared(("class", classes[0]), lambda: {"$classname": classes[0], "$classes": list(classes)})
        self.objects[place.data] = made
        return place

    def group(self, name, children, array="NSMutableArray"):
        arrays = ("NSMutableArray", "NSArray", "NSObject")[0 if array == "NSMutableArray" else 1:]
        return self.instance(("FeedGroup", "Feed", "NSObject"), {
            "groupName": lambda: self.text(name),
            "groupList": lambda: self.instance(arrays, {"NS.objects": lambda: [child() for child in children]})})

    def item(self, fields):
        return self.instance(("FeedItem", "Feed", "NSObject"), {
            key: (lambda value=value: self.text(value) if isinstance(value, str) else value) for key, value in fields.items()})

    def separator(self):
        return self.instance(("FeedSeparator", "Feed", "NSObject"), {})

    def save(self, path, root):
        archive = {"$version": 100000, "$archiver": "NSKeyedArchiver", "$top": {"root": root}, "$objects": self.objects}
        with open(path, "wb") as file:
            plistlib.dump(archive, file, fmt=plistlib.FMT_BINARY, sort_keys=False)


def make(path):
    writer = Writer()
    first = {"feedName": "Première", "feedURL": "http://a.invalid/1", "feedRefreshrate": 15, "feedUsername": "user",
             "feedUUID": UUID_TEXT}
    no_url = {"feedName": "Without address", "feedRefreshrate": 15, "feedUsername": "", "feedUUID": UUID_TEXT}
    boxed = {"feedName": "Boxed", "feedURL": "http://a.invalid/2", "feedRefreshrate": writer.add(45)}
    root = writer.group("__SAVED_FEED_GROUP__", [
        lambda: writer.item(first),
        writer.separator,
        lambda: writer.group("Group", [lambda: writer.item(no_url), lambda: writer.item(boxed), lambda: writer.text("no feed"),
                                       lambda: writer.group("Empty", [])], "NSArray")])
    writer.save(path, root)


def odd(path, name):
    writer = Writer()
    if name == "foreign-class":
        root = writer.group("__SAVED_FEED_GROUP__", [lambda: writer.instance(("Intruder", "NSObject"), {}), writer.separator])
    elif name == "dictionary":
        root = writer.group("__SAVED_FEED_GROUP__", [
            lambda: writer.group("Before", []),
            lambda: writer.instance(("NSDictionary", "NSObject"), {
                "NS.keys": lambda: [writer.text("feedName")], "NS.objects": lambda: [writer.text("Name")]})])
    elif name == "no-group":
        root = writer.separator()
    elif name == "wrong-types":
        root = writer.instance(("FeedGroup", "Feed", "NSObject"), {"groupName": lambda: 7, "groupList": lambda: writer.text("none")})
    else:
        sys.exit(f"unknown: {name}")
    writer.save(path, root)


def legacy(path):
    items = [
        {"Kind": "feedItem", "name": "One", "feedURL": "http://a.invalid/1", "feedRefreshrate": 15, "feedUsername": "user",
         "feedUUID": UUID_TEXT},
        {"Kind": "feedSeparator"},
        {"Kind": "unknown", "name": "X", "feedURL": "http://a.invalid/x"},
        {"name": "No kind", "feedURL": "http://a.invalid/x"},
        "no dictionary",
        {"Kind": "feedGroup", "groupName": "Group", "groupList": [
            {"Kind": "feedItem", "name": "Two", "feedURL": "http://a.invalid/2", "feedUUID": "none"},
            {"Kind": "feedItem", "feedURL": "http://a.invalid/3"},
            {"Kind": "feedItem", "name": "No address"},
            {"Kind": "feedItem", "name": "Bad address", "feedURL": "not a url"},
            {"Kind": "feedGroup", "groupList": "no array"},
        ]},
        {"Kind": "feedItem", "name": "Last", "feedURL": "http://a.invalid/4"},
    ]
    with open(path, "wb") as file:
        plistlib.dump(items, file, fmt=plistlib.FMT_XML)


def main():
    command, path = sys.argv[1:3]
    if command == "outline":
        with open(path, "rb") as file:
            reader = Reader(plistlib.load(file, fmt=plistlib.FMT_BINARY))
        reader.outline(reader.root)
    elif command == "states":
        with open(path, "rb") as file:
            for key, value in plistlib.load(file, fmt=plistlib.FMT_BINARY).items():
                print(f"{value} {key}")
    elif command == "make":
        make(path)
    elif command == "legacy":
        legacy(path)
    else:
        odd(path, sys.argv[3])


if __name__ == "__main__":
    main()
