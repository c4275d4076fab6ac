#include "support/RecordingXml.h"

#include "frame/Text.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::test {

namespace {

constexpr std::string_view kSpace = " \t\r\n";

class Node : public XmlNode {
  public:
    std::string name;
    std::string content;  // of a text
    std::map<std::string, std::string> attributes;
    std::vector<std::shared_ptr<Node>> children;

    std::string nodeName() override { return name; }
    std::string text() override
    {
        const std::string all = AllText();
        const std::size_t first = all.find_first_not_of(kSpace);
        return first == all.npos ? "" : all.substr(first, all.find_last_not_of(kSpace) - first + 1);
    }
    Value getAttribute(const std::string& attribute) override
    {
        const auto found = attributes.find(attribute);
        return found == attributes.end() ? Value::Null() : Value(found->second);
    }
    std::vector<std::shared_ptr<XmlNode>> childNodes() override { return {children.begin(), children.end()}; }

  private:
    std::string AllText() const
    {
        std::string all = content;
        for (const auto& child : children)
            all += child->AllText();
        return all;
    }
};

class NotWellFormed : public std::exception {};

class Reader {
  public:
    explicit Reader(std::string_view text) : strText(text) {}

    std::shared_ptr<Node> Document()
    {
        SkipBetween();
        auto root = Element();
        SkipBetween();
        if (lngPlace != strText.size())
            throw NotWellFormed();
        return root;
    }

  private:
    bool At(std::string_view what) const { return strText.substr(lngPlace).starts_with(what); }
    bool Take(std::string_view what)
    {
        if (!At(what))
            return false;
        lngPlace += what.size();
        return true;
    }
    void Want(std::string_view what)
    {
        if (!Take(what))
            throw NotWellFormed();
    }
    // What stands before `end`, which is left where it is.
    std::string_view Until(std::string_view end)
    {
        const std::size_t found = strText.find(end, lngPlace);
        if (found == strText.npos)
            throw NotWellFormed();
        return strText.substr(std::exchange(lngPlace, found), found - lngPlace);
    }
    bool SkipSpace()
    {
        const std::size_t before = lngPlace;
        lngPlace = std::min(strText.find_first_not_of(kSpace, lngPlace), strText.size());
        return lngPlace != before;
    }
    bool SkipComment()
    {
        const std::string_view end = Take("<!--") ? "-->" : Take("<?") ? "?>" : "";
        if (end.empty())
            return false;
        Until(end);
        return Take(end);
    }
    void SkipBetween()
    {
        while (SkipSpace() || SkipComment()) {
        }
    }

    std::string Name()
    {
        const std::size_t start = lngPlace;
        while (lngPlace < strText.size() &&
               (std::isalnum(static_cast<unsigned char>(strText[lngPlace])) || strText[lngPlace] == '_'))
            ++lngPlace;
        if (lngPlace == start)
            throw NotWellFormed();
        return std::string(strText.substr(start, lngPlace - start));
    }

    // Text with its references replaced.
    static std::string Plain(std::string_view text)
    {
        static const std::map<std::string_view, const char*> kEntities = {
            {"lt", "<"}, {"gt", ">"}, {"amp", "&"}, {"quot", "\""}, {"apos", "'"}};
        std::string plain;
        for (std::size_t place = 0; place < text.size(); ++place) {
            if (text[place] == '<')
                throw NotWellFormed();
            if (text[place] != '&') {
                plain += text[place];
                continue;
            }
            const std::size_t end = text.find(';', place);
            const auto entity =
                end == text.npos ? kEntities.end() : kEntities.find(text.substr(place + 1, end - place - 1));
            if (entity == kEntities.end())
                throw NotWellFormed();
            plain += entity->second;
            place = end;
        }
        return plain;
    }

    void Attribute(Node& node)
    {
        const std::string name = Name();
        SkipSpace();
        Want("=");
        SkipSpace();
        const std::string_view quote = At("'") ? "'" : "\"";
        Want(quote);
        const std::string value = Plain(Until(quote));
        Want(quote);
        if (!node.attributes.emplace(name, value).second)
            throw NotWellFormed();
    }

    std::shared_ptr<Node> Element()
    {
        Want("<");
        auto node = std::make_shared<Node>();
        node->name = Name();
        while (SkipSpace() && !At("/") && !At(">"))
            Attribute(*node);
        if (Take("/>"))
            return node;
        Want(">");
        Content(*node);
        Want("</" + node->name);
        SkipSpace();
        Want(">");
        return node;
    }

    void Content(Node& node)
    {
        while (!At("</")) {
            const std::string text = Plain(Until("<"));
            if (text.find_first_not_of(kSpace) != text.npos) {
                auto child = std::make_shared<Node>();
                child->name = "#text";
                child->content = text;
                node.children.push_back(child);
            }
            if (!At("</") && !SkipComment())
                node.children.push_back(Element());
        }
    }

    std::string_view strText;
    std::size_t lngPlace = 0;
};

class Document : public XmlDocument {
  public:
    explicit Document(std::shared_ptr<EventLog> events) : objEvents(std::move(events)) {}

    bool loadXML(const std::string& text) override
    {
        objEvents->Add("XmlDocument.loadXML " + text);
        try {
            objRoot = Reader(text).Document();
        } catch (const NotWellFormed&) {
            objRoot = nullptr;
        }
        return objRoot != nullptr;
    }
    std::shared_ptr<XmlNode> documentElement() override { return objRoot; }

  private:
    std::shared_ptr<EventLog> objEvents;
    std::shared_ptr<Node> objRoot;
};

}  // namespace

std::shared_ptr<XmlDocument> MakeRecordingXml(std::shared_ptr<EventLog> events)
{
    return std::make_shared<Document>(std::move(events));
}

}  // namespace kavelin::test
