// The filter object of a report: its items, and the condition that the host words over those that the
// report leaves to it.
#pragma once

#include "frame/host/ReportFilterObject.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/HostFilterItem.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {

class HostFilter : public ReportFilterObject {
  public:
    // One item a field that is no argument of the call. Captions are in the login's language; without a login
    // in Chinese.
    HostFilter(std::string filterId, const FilterTemplate& filter, std::shared_ptr<LoginContext> login);

    // Items take the values of the input, several joined by their field's separator; arguments of the call
    // go into ContextArgs under their keys.
    void Fill(const FilterInput& input);
    void Fill(const FieldInput& given);

    std::string FilterID() override { return strFilterId; }
    std::shared_ptr<LoginContext> Login() override { return objLogin; }
    std::shared_ptr<kavelin::FilterList> FilterList() override;
    std::shared_ptr<NamedValues> ContextArgs() override { return objContextArgs; }

    // The key is the control key of a field without regard to case, with "__2" its second box; the filter key
    // will do. What is done to a field that the template lacks has no effect, and its value is empty: the
    // callbacks know more fields than a template needs.
    Value GetFieldValue(const std::string& key) override;
    void SetFieldValue(const std::string& key, const Value& value) override;
    void SetFieldRefCondition(const std::string& key, const std::string& text,
                              const std::string& condition) override;
    void SetFieldFlag(const std::string& key, bool flag) override;
    void SetFieldLocked(const std::string& key, bool locked) override;
    void RefreshFieldList(const std::string& key, const std::string& enumType,
                          const std::string& list) override;
    void SetFieldRangeList(const std::string& key, const std::string& list) override;

    // The conditions of the token's items, as FieldCondition words each, joined by " and ".
    std::string GetWhereWithToken(std::int32_t token) override;

    // The items in their order.
    const std::vector<std::shared_ptr<HostFilterItem>>& Items() const { return lstItems; }

    // The item of that filter key without regard to case; null if there is none.
    HostFilterItem* Find(std::string_view key) const;

  private:
    struct Box {
        HostFilterItem* item = nullptr;
        bool second = false;
    };
    Box FindBox(const std::string& controlKey) const;
    FieldState* State(const std::string& controlKey) const;

    std::string strFilterId;
    std::shared_ptr<LoginContext> objLogin;
    std::vector<std::shared_ptr<HostFilterItem>> lstItems;
    std::shared_ptr<NamedValues> objContextArgs;
};

}  // namespace kavelin::host
