#include "host/HostXml.h"

#include <pugixml.hpp>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
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

// ---- what pugixml lets through, and XML does not

bool IsXmlCharacter(std::uint32_t character)
{
    return character == '\t' || character == '\n' || character == '\r' ||
           (character >= 0x20 && character <= 0xD7FF) || (character >= 0xE000 && character <= 0xFFFD) ||
           (character >= 0x10000 && character <= 0x10FFFF);
}

// What stands between "&" and ";".
bool IsReference(std::string_view name)
{
    constexpr std::string_view kEntities[] = {"lt", "gt", "amp", "quot", "apos"};
    if (!name.starts_with("#"))
        return std::ranges::find(kEntities, name) != std::end(kEntities);
    const bool hexadecimal = name.starts_with("#x");
    const std::string_view digits = name.substr(hexadecimal ? 2 : 1);
    std::uint32_t character = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), character, hexadecimal ? 16 : 10);
    return error == std::errc() && end == digits.data() + digits.size() && IsXmlCharacter(character);
}

// A text as it stands in the document, with its references.
bool IsWellFormed(std::string_view text)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if (byte < 0x80 && !IsXmlCharacter(byte))
            return false;
        if (byte != '&')
            continue;
        const std::size_t end = text.find(';', at);
        if (end == text.npos || !IsReference(text.substr(at + 1, end - at - 1)))
            return false;
        at = end;
    }
    return true;
}

bool HasWellFormedAttributes(const pugi::xml_node& node)
{
    std::set<std::string_view> names;
    return std::ranges::all_of(node.attributes(), [&](const pugi::xml_attribute& attribute) {
        const std::string_view value = attribute.value();
        return names.insert(attribute.name()).second && value.find('<') == value.npos && IsWellFormed(value);
    });
}

// Of a document whose references were not replaced.
bool HasWellFormedTexts(const pugi::xml_node& node)
{
    const std::string_view text = node.value();
    if (node.type() == pugi::node_pcdata && (text.find("]]>") != text.npos || !IsWellFormed(text)))
        return false;
    return HasWellFormedAttributes(node) && std::ranges::all_of(node.children(), HasWellFormedTexts);
}

// As a fragment, what stands beside the one element of a document is seen and not dropped.
bool Load(pugi::xml_document& document, const std::string& text, unsigned int options)
{
    const bool parsed =
        document.load_buffer(text.data(), text.size(), options | pugi::parse_fragment, pugi::encoding_utf8);
    const auto nodes = document.children();
    return parsed && std::distance(nodes.begin(), nodes.end()) == 1 && document.document_element();
}

bool IsWellFormedDocument(const std::string& text)
{
    pugi::xml_document document;
    return Load(document, text, pugi::parse_default & ~pugi::parse_escapes) && HasWellFormedTexts(document);
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
        const bool wellFormed = IsWellFormedDocument(text) && Load(*fresh, text, pugi::parse_default);
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
