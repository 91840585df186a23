// SPDX-License-Identifier: Apache-2.0
// fork, exec and wait4: the accounting is the kernel's, one process a run. What a program that is killed had started is
// waited for by nobody; it is looked up beforehand.
#include "dialogs/Run.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench
{

namespace
{

double secondsOf(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// The first number behind a word in a file; 0 when it is not there.
double numberIn(const std::filesystem::path &file, const std::string &word)
{
    std::ifstream stream(file);
    double number = 0.0;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with(word)) {
            std::istringstream(line.substr(word.size())) >> number;
        }
    }
    return number;
}

std::vector<pid_t> childrenOf(pid_t process)
{
    std::vector<pid_t> children;
    for (const auto &entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename().string();
        if (std::all_of(name.begin(), name.end(), [](char digit) { return digit >= '0' && digit <= '9'; }) &&
            static_cast<pid_t>(numberIn(entry.path() / "status", "PPid:")) == process) {
            children.push_back(static_cast<pid_t>(std::stol(name)));
        }
    }
    return children;
}

} // namespace

Cost costOfStarted(pid_t process)
{
    Cost all;
    for (const pid_t child : childrenOf(process)) {
        const std::filesystem::path about = "/proc/" + std::to_string(child);
        const Cost further = costOfStarted(child);
        all.cpuSeconds += numberIn(about / "schedstat", "") / 1e9 + further.cpuSeconds;
        all.memoryMb = std::max({all.memoryMb, numberIn(about / "status", "VmHWM:") / 1024.0, further.memoryMb});
    }
    return all;
}

pid_t startProgram(const Program &program, const Variables &variables)
{
    std::vector<std::string> words = program.command;
    std::vector<char *> arguments;
    std::transform(words.begin(), words.end(), std::back_inserter(arguments),
                   [](std::string &word) { return word.data(); });
    arguments.push_back(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, STDIN_FILENO);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        for (const auto &[name, value] : variables) {
            setenv(name.c_str(), value.c_str(), 1);
        }
        execv(arguments.front(), arguments.data());
        _exit(127);
    }
    return process;
}

Cost waitForProgram(pid_t process)
{
    rusage used{};
    Cost cost;
    wait4(process, &cost.status, 0, &used);
    cost.cpuSeconds = secondsOf(used.ru_utime) + secondsOf(used.ru_stime);
    cost.memoryMb = static_cast<double>(used.ru_maxrss) / 1024.0;
    return cost;
}

} // namespace bench
