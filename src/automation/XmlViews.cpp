// Views of an XML document and its nodes, shaped like those of MSXML.
#include "automation/Border.h"
#include "automation/HostView.h"
#include "automation/Views.h"

namespace kavelin::automation {

namespace {

// A list whose positions count from 0.
class NodeListView : public HostView {
  public:
    using HostView::HostView;

    std::vector<std::shared_ptr<XmlNode>> Nodes() const
    {
        std::vector<std::shared_ptr<XmlNode>> nodes;
        const std::int32_t length = ReadNumber("length");
        for (std::int32_t i = 0; i < length; ++i)
            nodes.push_back(As<XmlNode>(Call("item", {Value(i)}), Named("item")));
        return nodes;
    }
};

class XmlNodeView : public XmlNode, public HostView {
  public:
    using HostView::HostView;

    std::string nodeName() override { return ReadText("nodeName"); }
    std::string text() override { return ReadText("text"); }
    Value getAttribute(const std::string& name) override
    {
        return CallForValue("getAttribute", {Value(name)});
    }
    std::vector<std::shared_ptr<XmlNode>> childNodes() override
    {
        return NodeListView(LateBoundOf(ReadObject<LateBound>("childNodes")), "childNodes").Nodes();
    }
};

class XmlDocumentView : public XmlDocument, public HostView {
  public:
    using HostView::HostView;

    bool loadXML(const std::string& text) override
    {
        Write("async", Value(false));
        return ToBoolean(CallForValue("loadXML", {Value(text)}));
    }
    std::shared_ptr<XmlNode> documentElement() override
    {
        const Variant root = Object()->Get("documentElement");
        return IsNothing(root) ? nullptr : As<XmlNode>(root, Named("documentElement"));
    }
};

}  // namespace

template <>
std::shared_ptr<XmlDocument> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<XmlDocumentView>(std::move(object), "XmlDocument");
}

template <>
std::shared_ptr<XmlNode> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<XmlNodeView>(std::move(object), "XmlNode");
}

}  // namespace kavelin::automation
