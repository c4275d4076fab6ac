// ODBC's handles, freed by their owner.
#pragma once

namespace kavelin::odbc {

enum class HandleKind : short { Environment = 1, Connection = 2, Statement = 3 };

class Handle {
  public:
    // Owns `raw`, a handle of that kind.
    Handle(HandleKind kind, void* raw) : enmKind(kind), objRaw(raw) {}
    ~Handle();
    Handle(Handle&& other) noexcept;
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HandleKind Kind() const { return enmKind; }
    void* Get() const { return objRaw; }

  private:
    HandleKind enmKind;
    void* objRaw;
};

// Throws ConnectionError where ODBC itself gives none.
Handle NewEnvironment();

// A connection of an environment, or a statement of a connection; null if there is none to be had, and
// diagnostics of `of` then tell why.
Handle NewHandle(HandleKind kind, const Handle& of);

}  // namespace kavelin::odbc
