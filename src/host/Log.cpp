#include "host/Log.h"

#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/spdlog.h>

namespace kavelin::host {

void LogWarning(const std::string& text)
{
    static const auto logger = [] {
        auto made = spdlog::stderr_logger_mt("kavelin");
        made->set_pattern("%Y-%m-%d %H:%M:%S %l: %v");
        return made;
    }();
    logger->warn("{}", text);
}

}  // namespace kavelin::host
