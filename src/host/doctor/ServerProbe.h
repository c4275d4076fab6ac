// Whether a server can be reached over the network, before any driver is asked.
#pragma once

#include "database/odbc/ServerAddress.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace kavelin::host {

enum class Reach : std::uint8_t {
    Answers,
    UnknownName,  // the name of the machine has no address
    Refused,      // the machine is there, but nobody listens at the port
    Silent,       // no answer in time
    NoInstance,   // nobody tells the port of the named instance
};

struct ProbeResult {
    Reach reach = Reach::Answers;
    int port = 0;         // that was tried, 0 if none was
    std::string address;  // that the name stands for, as digits; empty if none was found
};

struct ProbeLimits {
    std::chrono::milliseconds patience{4000};  // for each answer
    int usualPort = 1433;                      // where no port and no instance is named
    int browserPort = 1434;  // where a machine tells the ports of its named instances, over UDP
};

// Connects to the port and hangs up again, at the first of the name's addresses that answers. An instance
// without a port is asked for on the machine first.
ProbeResult ProbeServer(const odbc::ServerAddress& server, const ProbeLimits& limits = {});

}  // namespace kavelin::host
