// Names that make work tables unique: the machine, the running client, GUIDs.
#pragma once

#include "frame/host/SuiteObjects.h"

#include <string>

namespace kavelin::host {

class HostMachineInfo : public MachineInfo {
  public:
    std::string MachineName() override;
};

// Made of the process and of a count, so that no two objects on one machine answer alike.
class HostClientNumber : public ClientNumber {
  public:
    HostClientNumber();
    Value Number() override { return lngNumber; }

  private:
    std::int32_t lngNumber;
};

// Random, of version 4.
Guid RandomGuid();

// Its 32 hexadecimal digits.
std::string HexDigits(const Guid& guid);

}  // namespace kavelin::host
