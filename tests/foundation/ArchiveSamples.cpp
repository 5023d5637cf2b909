#include "tests/foundation/ArchiveSamples.hpp"

#include "foundation/KeyedArchiver.hpp"
#include "tests/support/Folders.hpp"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>

namespace brindle::testsupport {

Node::~Node() {
    // Deep trees are taken apart level by level.
    std::vector<std::shared_ptr<Node>> pending = std::move(children);
    pending.push_back(std::move(friendNode));
    while (!pending.empty()) {
        const std::shared_ptr<Node> node = std::move(pending.back());
        pending.pop_back();
        if (node == nullptr || node.use_count() > 1)
            continue;
        for (std::shared_ptr<Node>& child : node->children)
            pending.push_back(std::move(child));
        pending.push_back(std::move(node->friendNode));
        node->children.clear();
    }
}

void Node::encode(Coder& coder) const {
    coder.encode("name", std::string_view(name));
    coder.encode("number", number);
    coder.encode("children", std::vector<std::shared_ptr<const Coding>>(children.begin(), children.end()));
    if (!table.empty())
        coder.encode("table", table);
    coder.encode("friend", std::shared_ptr<const Coding>(friendNode));
    if (!blob.empty())
        coder.encode("blob", PropertyList::Data{blob});
}

std::shared_ptr<Coding> Node::decoded(const Decoder& decoder) {
    auto node = std::make_shared<Node>(decoder.decodeText("name").value_or("unnamed"), decoder.decodeInteger("number").value_or(-1));
    if (node->name == "refused")
        return nullptr;
    if (const auto objects = decoder.decodeObjects("children")) {
        node->hasChildren = true;
        for (const std::shared_ptr<Coding>& object : *objects)
            node->children.push_back(std::dynamic_pointer_cast<Node>(object));
    }
    node->table = decoder.decodeDictionaries("table").value_or(std::vector<CodedDictionary>());
    node->friendNode = std::dynamic_pointer_cast<Node>(decoder.decodeObject("friend"));
    node->blob = decoder.decodeData("blob").value_or(std::string());
    return node;
}

KeyedUnarchiver nodeUnarchiver() {
    KeyedUnarchiver unarchiver;
    unarchiver.setClass("Node", Node::decoded);
    unarchiver.setAllowsDictionaries(true);
    return unarchiver;
}

std::string archived(const std::shared_ptr<Node>& root) {
    const auto bytes = KeyedArchiver::archivedData(root);
    EXPECT_TRUE(bytes.has_value());
    return bytes.value_or(std::string());
}

std::shared_ptr<Node> unarchived(std::string_view bytes) {
    const auto root = nodeUnarchiver().unarchive(bytes);
    return root ? std::dynamic_pointer_cast<Node>(*root) : nullptr;
}

std::string errorOf(std::string_view bytes) {
    const auto root = nodeUnarchiver().unarchive(bytes);
    return root ? "none" : root.error().message;
}

std::string runArchiveScript(const std::string& arguments) {
    const std::string command = "python3 '" + testsupport::sourceFolder() + "/tests/foundation/keyed_archive.py' " + arguments;
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::string output;
    std::array<char, 4096> buffer{};
    for (std::size_t size = 1; pipe != nullptr && size > 0;) {
        size = std::fread(buffer.data(), 1, buffer.size(), pipe);
        output.append(buffer.data(), size);
    }
    EXPECT_TRUE(pipe != nullptr && pclose(pipe) == 0) << command;
    return output;
}

} // namespace brindle::testsupport
