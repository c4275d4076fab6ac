// Messages and the packets that they travel in.
//
// A message is cut into packets of the size that both sides agreed on. A packet is a head of eight bytes
// (type, status, length and others) and its part of the message; the last one of a message says so in its
// status.
#pragma once

#include "support/tds/Wire.h"

#include <cstddef>
#include <cstdint>

namespace kavelin::test::tds {

enum class MessageType : std::uint8_t {
    Batch = 0x01,
    Rpc = 0x03,
    Answer = 0x04,
    Attention = 0x06,
    BulkLoad = 0x07,
    Transaction = 0x0E,
    Login = 0x10,
    Prelogin = 0x12,
};

struct Message {
    MessageType type{};
    Bytes content;
};

constexpr std::size_t kFirstPacketSize = 4096;  // until the login has agreed on another
constexpr std::size_t kPacketHead = 8;

// One client's socket. One thread may read while another writes.
class Socket {
  public:
    explicit Socket(int handle) : intHandle(handle) {}
    ~Socket();
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    // The next message in full. Throws ProtocolError if the connection ends before.
    Message Read();

    // Throws ProtocolError if the client is gone.
    void Write(std::string_view bytes);

    // Ends the connection at once, also for a thread that reads or writes. Any thread may call it.
    void Drop() noexcept;

  private:
    void ReadInto(char* bytes, std::size_t count);

    int intHandle;
};

// An answer in the making. Full packets are sent as they come, so an answer may have any length.
class Answer {
  public:
    Answer(Socket& socket, std::size_t packetSize) : objSocket(socket), lngPacketSize(packetSize) {}

    Bytes& Tail() { return strTail; }  // tokens are put on here
    void SendFull();                   // what fills packets
    void SendAll();                    // the rest as well, in a packet that is not the last one
    void Finish();                     // the last packet
    void SetPacketSize(std::size_t size) { lngPacketSize = size; }

  private:
    void SendPacket(std::string_view part, bool last);

    Socket& objSocket;
    std::size_t lngPacketSize;
    Bytes strTail;
    std::uint8_t bytNumber = 1;
};

}  // namespace kavelin::test::tds
