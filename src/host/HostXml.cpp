#include "host/HostXml.h"

#include <pugixml.hpp>

#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::host {

namespace {

using DocumentPtr = std::shared_ptr<pugi::xml_document>;

bool IsText(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

std::string TextOf(const pugi::xml_node& node)
{
    if (IsText(node))
        return node.value();
    std::string text;
    for (const pugi::xml_node& child : node.children())
        text += TextOf(child);
    return text;
}

std::string Trimmed(const std::string& text)
{
    constexpr const char* kSpace = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kSpace);
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

class HostXmlNode : public XmlNode {
  public:
    HostXmlNode(DocumentPtr document, pugi::xml_node node) : objDocument(std::move(document)), objNode(node)
    {
    }

    std::string nodeName() override { return IsText(objNode) ? "#text" : objNode.name(); }
    std::string text() override { return Trimmed(TextOf(objNode)); }

    Value getAttribute(const std::string& name) override
    {
        const pugi::xml_attribute attribute = objNode.attribute(name.c_str());
        return attribute ? Value(attribute.value()) : Value::Null();
    }

    std::vector<std::shared_ptr<XmlNode>> childNodes() override
    {
        std::vector<std::shared_ptr<XmlNode>> nodes;
        for (const pugi::xml_node& child : objNode.children())
            nodes.push_back(std::make_shared<HostXmlNode>(objDocument, child));
        return nodes;
    }

  private:
    DocumentPtr objDocument;
    pugi::xml_node objNode;
};

class HostXmlDocument : public XmlDocument {
  public:
    bool loadXML(const std::string& text) override
    {
        auto fresh = std::make_shared<pugi::xml_document>();
        // As a fragment, what stands beside the one element of a document is seen and not dropped.
        const bool parsed = fresh->load_buffer(
            text.data(), text.size(), pugi::parse_default | pugi::parse_fragment, pugi::encoding_utf8);
        const auto nodes = fresh->children();
        const bool wellFormed =
            parsed && std::distance(nodes.begin(), nodes.end()) == 1 && fresh->document_element();
        objDocument = wellFormed ? fresh : nullptr;
        return wellFormed;
    }

    std::shared_ptr<XmlNode> documentElement() override
    {
        return objDocument ? std::make_shared<HostXmlNode>(objDocument, objDocument->document_element())
                           : nullptr;
    }

  private:
    DocumentPtr objDocument;
};

}  // namespace

std::shared_ptr<XmlDocument> CreateXml()
{
    return std::make_shared<HostXmlDocument>();
}

}  // namespace kavelin::host
