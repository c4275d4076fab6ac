// The XML parser of the suite.
#pragma once

#include "frame/host/SuiteObjects.h"

#include <memory>
#include <string>

namespace kavelin::host {

// Nodes keep the document alive that they belong to. Comments and processing instructions are no nodes;
// texts between elements are, named "#text", unless they are white space only.
std::shared_ptr<XmlDocument> CreateXml();

}  // namespace kavelin::host
