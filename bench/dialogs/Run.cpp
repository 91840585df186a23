// SPDX-License-Identifier: Apache-2.0
// fork, exec and wait4: the accounting is the kernel's, one process a run.
#include "dialogs/Run.h"

#include <algorithm>
#include <cstdlib>

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

} // namespace

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
