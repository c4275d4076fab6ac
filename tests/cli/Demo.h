// A demo account that the tests of this program share, made once by the program itself.
#pragma once

#include <string>

namespace kavelin::cli {

// Path of a demo account of 3,000 ledger lines. Each test program process has its own, since an account is
// one process's at a time.
const std::string& DemoAccount();

}  // namespace kavelin::cli
