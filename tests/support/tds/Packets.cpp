#include "support/tds/Packets.h"

#include <sys/socket.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>

namespace kavelin::test::tds {

namespace {

constexpr std::uint8_t kLastPacket = 0x01;
constexpr std::size_t kLargestMessage = std::size_t{64} << 20;

void AppendBigEndian(Bytes& bytes, std::size_t number)
{
    bytes += static_cast<char>(number >> 8);
    bytes += static_cast<char>(number & 0xFF);
}

}  // namespace

Socket::~Socket()
{
    ::close(intHandle);
}

void Socket::ReadInto(char* bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t got = ::recv(intHandle, bytes, count, 0);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            throw ProtocolError("the client is gone");
        bytes += got;
        count -= static_cast<std::size_t>(got);
    }
}

Message Socket::Read()
{
    Message message;
    for (;;) {
        unsigned char head[kPacketHead];
        ReadInto(reinterpret_cast<char*>(head), sizeof head);
        const std::size_t length = head[2] * std::size_t{256} + head[3];
        if (length < kPacketHead)
            throw ProtocolError("a packet is shorter than its head");
        message.type = static_cast<MessageType>(head[0]);
        const std::size_t before = message.content.size();
        if (before + length > kLargestMessage)
            throw ProtocolError("a message is too long");
        message.content.resize(before + length - kPacketHead);
        ReadInto(message.content.data() + before, length - kPacketHead);
        if (head[1] & kLastPacket)
            return message;
    }
}

void Socket::Write(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t sent = ::send(intHandle, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0)
            throw ProtocolError("the client is gone");
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

void Socket::Drop() noexcept
{
    ::shutdown(intHandle, SHUT_RDWR);
}

void Answer::SendPacket(std::string_view part, bool last)
{
    Bytes packet;
    packet += static_cast<char>(MessageType::Answer);
    packet += static_cast<char>(last ? kLastPacket : 0);
    AppendBigEndian(packet, part.size() + kPacketHead);
    AppendBigEndian(packet, 0);  // the session's number
    packet += static_cast<char>(bytNumber++);
    packet += '\0';  // the window, which nobody uses
    packet += part;
    objSocket.Write(packet);
}

void Answer::SendFull()
{
    const std::size_t room = lngPacketSize - kPacketHead;
    if (strTail.size() <= room)
        return;
    std::size_t sent = 0;
    for (; strTail.size() - sent > room; sent += room)
        SendPacket(std::string_view(strTail).substr(sent, room), false);
    strTail.erase(0, sent);
}

void Answer::SendAll()
{
    SendFull();
    if (!strTail.empty())
        SendPacket(strTail, false);
    strTail.clear();
}

void Answer::Finish()
{
    SendFull();
    SendPacket(strTail, true);
    strTail.clear();
    bytNumber = 1;
}

}  // namespace kavelin::test::tds
