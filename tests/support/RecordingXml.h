// A small XML document: elements, attributes, texts, character and entity references, comments.
#pragma once

#include "support/EventLog.h"

#include "frame/host/SuiteObjects.h"

#include <memory>

namespace kavelin::test {

// Writes "XmlDocument.loadXML TEXT". Refuses what XML refuses, such as a lone "&" or "<" in a value.
std::shared_ptr<XmlDocument> MakeRecordingXml(std::shared_ptr<EventLog> events);

}  // namespace kavelin::test
