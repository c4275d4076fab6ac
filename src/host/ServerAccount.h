// Accounts on a server: what their connection strings say and how they get their password.
#pragma once

#include <string>

namespace kavelin::host {

// Whether the connection string is for a server, and not for an embedded account.
bool OnServer(const std::string& connectionString);

// Whether the login that the string describes has a password: it names a user and doesn't leave him to the
// system that the program runs on.
bool WantsPassword(const std::string& connectionString);

// The server's connection string complete, as reports open it: with an empty user and an empty password
// beside it. An empty password changes nothing.
std::string WithPassword(const std::string& connectionString, const std::string& password);

// What the string reaches, in a few words for a person and without any secret: "tcp:host,1433".
std::string ServerShown(const std::string& connectionString);

}  // namespace kavelin::host
