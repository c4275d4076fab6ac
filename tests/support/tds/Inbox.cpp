#include "support/tds/Inbox.h"

#include <utility>

namespace kavelin::test::tds {

void Inbox::Push(Message message)
{
    const std::lock_guard lock(objMutex);
    lstMessages.push_back(std::move(message));
    objChanged.notify_all();
}

void Inbox::End()
{
    const std::lock_guard lock(objMutex);
    blnEnded = true;
    objChanged.notify_all();
}

std::optional<Message> Inbox::Pop()
{
    std::unique_lock lock(objMutex);
    objChanged.wait(lock, [this] { return blnEnded || !lstMessages.empty(); });
    if (lstMessages.empty())
        return std::nullopt;
    Message message = std::move(lstMessages.front());
    lstMessages.pop_front();
    return message;
}

bool Inbox::IsInterrupted() const
{
    return blnEnded || (!lstMessages.empty() && lstMessages.front().type == MessageType::Attention);
}

bool Inbox::Interrupted()
{
    const std::lock_guard lock(objMutex);
    return IsInterrupted();
}

void Inbox::WaitInterrupted(std::chrono::milliseconds time)
{
    std::unique_lock lock(objMutex);
    objChanged.wait_for(lock, time, [this] { return IsInterrupted(); });
}

}  // namespace kavelin::test::tds
