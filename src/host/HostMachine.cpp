#include "host/HostMachine.h"

#include "frame/IdentifierText.h"

#include <fmt/format.h>

#include <unistd.h>

#include <array>
#include <atomic>
#include <random>

namespace kavelin::host {

std::string HostMachineInfo::MachineName()
{
    std::array<char, 256> name{};
    const bool known = ::gethostname(name.data(), name.size() - 1) == 0;
    return IdentifierText(known ? name.data() : "");
}

// Process numbers have at most 22 bits on Linux, which leaves nine for the count.
HostClientNumber::HostClientNumber()
{
    static std::atomic<std::int32_t> count = 0;
    lngNumber = static_cast<std::int32_t>(::getpid()) % (1 << 22) * (1 << 9) + count++ % (1 << 9);
}

Guid RandomGuid()
{
    std::random_device device;
    Guid guid;
    for (std::uint8_t& byte : guid)
        byte = static_cast<std::uint8_t>(device());
    guid[6] = static_cast<std::uint8_t>((guid[6] & 0x0F) | 0x40);
    guid[8] = static_cast<std::uint8_t>((guid[8] & 0x3F) | 0x80);
    return guid;
}

std::string HexDigits(const Guid& guid)
{
    return fmt::format("{:02X}", fmt::join(guid, ""));
}

}  // namespace kavelin::host
