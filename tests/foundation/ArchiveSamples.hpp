#pragma once

#include "foundation/Coding.hpp"
#include "foundation/KeyedUnarchiver.hpp"

#include <memory>
#include <string>
#include <vector>

namespace brindle::testsupport {

/// An object with a field of each archived kind.
class Node : public Coding {
public:
    Node() = default;
    explicit Node(std::string nodeName, std::int64_t nodeNumber = 0) : name(std::move(nodeName)), number(nodeNumber) {}
    ~Node() override;

    std::vector<std::string_view> archiveClasses() const override { return {"Node", "Base"}; }
    void encode(Coder& coder) const override;

    /// Makes a node of whatever fields there are; null for one that is named "refused".
    static std::shared_ptr<Coding> decoded(const Decoder& decoder);

    std::string name;
    std::int64_t number = 0;
    std::vector<std::shared_ptr<Node>> children;
    std::vector<CodedDictionary> table;
    std::shared_ptr<Node> friendNode;
    std::string blob;         ///< not written when empty
    bool hasChildren = false; ///< set by decoding, when there was an array
};

/// An unarchiver that knows nodes.
KeyedUnarchiver nodeUnarchiver();

/// The archive's bytes; fails the running test when there are none.
std::string archived(const std::shared_ptr<Node>& root);

/// The root node out of an archive; null when it is refused or holds none.
std::shared_ptr<Node> unarchived(std::string_view bytes);

/// Why an archive is refused; "none" where it is read.
std::string errorOf(std::string_view bytes);

/// What the script beside the tests prints when it runs with these arguments; fails the running test when it fails.
std::string runArchiveScript(const std::string& arguments);

} // namespace brindle::testsupport
