// Values on their way over the C border.
#pragma once

#include "frame/host/HostObject.h"

#include "kavelin.h"

#include <string>
#include <string_view>

namespace kavelin::capi {

// The content, copied. Throws BadArgument for a value that is none, and what LentObject throws.
Variant ToVariant(const kavelin_value& value);

// The same for a value that a member of the host has filled in: an owned one is given back.
Variant TakeVariant(kavelin_value& value);

// An owned value. An object becomes a handle with one owner more.
kavelin_value OwnedValue(const Variant& content);

// Gives back what an owned value holds and makes it empty.
void Clear(kavelin_value& value) noexcept;

// A value that is lent to a member of the host for the time of a call: text that stays where it is, a handle
// that is given back afterwards.
class LentValue {
  public:
    // `content` must live as long.
    explicit LentValue(const Variant& content);
    ~LentValue();
    LentValue(LentValue&& other) noexcept;
    LentValue& operator=(LentValue&&) = delete;

    const kavelin_value& Get() const { return objLent; }

    // Whether the member has left `value` as it was lent.
    bool IsUnchanged(const kavelin_value& value) const;

  private:
    std::string strDecimal;
    kavelin_value objLent;
};

// The text that ends with a NUL. Throws BadArgument, naming `what`, for null and for what is no UTF-8.
std::string_view RequiredText(const char* text, std::string_view what);
bool IsUtf8(std::string_view text);

}  // namespace kavelin::capi
