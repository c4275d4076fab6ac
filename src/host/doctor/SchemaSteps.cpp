#include "host/doctor/SchemaSteps.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/doctor/ErrorKinds.h"

#include <fmt/format.h>

#include <algorithm>

namespace kavelin::host {

namespace {

struct Findings {
    std::size_t objects = 0, columns = 0;  // that are there, and of these columns needed
    std::vector<std::string> absent, absentColumns, denied, odd;  // needed, with their reports
    std::vector<std::string> spareColumns, spareObjects;          // absent, but no usual run reads them
};

// "Inventory.iid: abc journal"
std::string Told(const std::string& name, const std::string& reports)
{
    return reports.empty() ? name : name + ": " + reports;
}

std::string SelectNothing(const NeededObject& object)
{
    return object.IsFunction() ? "select " + object.name : "select * from " + object.name + " where 1=0";
}

bool HasField(const Recordset& rows, std::string_view name)
{
    for (int field = 0; field < rows.FieldCount(); ++field)
        if (EqualsNoCase(rows.FieldName(field), name))
            return true;
    return false;
}

void LookAt(Connection& account, const NeededObject& object, Findings& findings)
{
    try {
        const auto rows = account.OpenRecordset(SelectNothing(object), CursorLocation::Client,
                                                CursorType::ForwardOnly, LockType::ReadOnly);
        ++findings.objects;
        for (const NeededColumn& column : object.columns) {
            const std::string name = object.name + "." + column.name;
            if (HasField(*rows, column.name))
                findings.columns += column.reports.empty() ? 0 : 1;
            else if (column.reports.empty())
                findings.spareColumns.push_back(name);
            else
                findings.absentColumns.push_back(Told(name, column.reports));
        }
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        const ErrorKind kind = KindOf(error.Get());
        if (kind == ErrorKind::ConnectionLost)
            throw;
        if (kind == ErrorKind::NoRight)
            findings.denied.push_back(Told(object.name, object.reports));
        else if (kind != ErrorKind::NoSuchObject)
            findings.odd.push_back(Told(object.name, object.reports) + ": " + error.what());
        else if (object.reports.empty())
            findings.spareObjects.push_back(object.name);
        else
            findings.absent.push_back(Told(object.name, object.reports));
    }
}

// What is absent though no usual run reads it, in lines that can't be taken for failures.
std::vector<std::string> Spare(const std::vector<std::string>& names)
{
    std::vector<std::string> lines;
    for (const std::string& name : names)
        lines.push_back(name + " is not there; no usual run of a report reads it");
    return lines;
}

DoctorStep ObjectsStep(const Findings& findings)
{
    std::vector<std::string> broken = findings.absent;
    broken.insert(broken.end(), findings.odd.begin(), findings.odd.end());
    DoctorStep step =
        broken.empty()
            ? Passed("objects",
                     fmt::format("All {} tables, views and functions are there.", findings.objects))
            : Failed(
                  "objects",
                  fmt::format("{} of the tables, views and functions that reports read {} missing or broken.",
                              broken.size(), broken.size() == 1 ? "is" : "are"),
                  "See whether Initial Catalog names the right database, and have its administrator add what "
                  "is missing; the reports named behind each need it.");
    step.details = std::move(broken);
    std::ranges::move(Spare(findings.spareObjects), std::back_inserter(step.details));
    return step;
}

DoctorStep ColumnsStep(const Findings& findings)
{
    if (findings.objects == 0)
        return Skipped("columns", "No table or view could be read.");
    const std::size_t count = findings.absentColumns.size();
    DoctorStep step =
        count == 0
            ? Passed("columns", fmt::format("All {} columns that reports read are there.", findings.columns))
            : Failed("columns",
                     fmt::format("{} {} that reports read {} missing.", count,
                                 count == 1 ? "column" : "columns", count == 1 ? "is" : "are"),
                     "Have the database brought up to the release of the suite that the reports belong to.");
    step.details = findings.absentColumns;
    std::ranges::move(Spare(findings.spareColumns), std::back_inserter(step.details));
    return step;
}

DoctorStep SelectStep(const Findings& findings)
{
    if (!findings.denied.empty()) {
        DoctorStep step = Failed(
            "select", fmt::format("{} of them may not be read by this login.", findings.denied.size()),
            "Have the login made a member of db_datareader in the account's database and in VosSystem, and "
            "granted execute on functions.");
        step.details = findings.denied;
        return step;
    }
    if (findings.objects == 0)
        return Skipped("select", "No table or view could be read.");
    return Passed("select", "The login may read what is there.");
}

}  // namespace

std::vector<DoctorStep> ExamineSchema(Connection& account, const std::vector<NeededObject>& needs)
{
    Findings findings;
    for (const NeededObject& object : needs)
        LookAt(account, object, findings);
    return {ObjectsStep(findings), ColumnsStep(findings), SelectStep(findings)};
}

}  // namespace kavelin::host
