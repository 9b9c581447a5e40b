// SPDX-License-Identifier: MIT
#include "e2e/Program.h"

#include "platform/NameBytes.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace e2e {

namespace {

// Makes this process the program, without what leads to a display or to the user's own files.
[[noreturn]] void Become(const QStringList& arguments, const QByteArray& folder, const QByteArray& home,
                         int output)
{
    ::setenv("HOME", home.constData(), 1);
    ::setenv("XDG_DATA_HOME", (home + "data").constData(), 1);
    ::setenv("QT_QPA_PLATFORM", "nonexistent", 1);
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
        ::unsetenv(name);
    }
    ::dup2(::open("/dev/null", O_RDONLY | O_CLOEXEC), STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(output, STDERR_FILENO);
    std::vector<char*> command{::strdup(QUILLMARK_EXECUTABLE)};
    for (const QString& argument : arguments) {
        command.push_back(::strdup(platform::ToBytes(argument).constData()));
    }
    command.push_back(nullptr);
    if (::chdir(folder.constData()) == 0) {
        ::execv(command[0], command.data());
    }
    std::perror(command[0]);
    ::_exit(127);
}

} // namespace

QByteArray Program::Run(const QString& folder, const QStringList& arguments) const
{
    const QByteArray path = platform::ToBytes(output_.Path() + u"output"_qs);
    const int output = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const pid_t process = ::fork();
    if (process == 0) {
        Become(arguments, platform::ToBytes(folder), platform::ToBytes(home_.Path()), output);
    }
    ::close(output);
    int status = 0;
    if (::waitpid(process, &status, 0) != process) {
        return "the program couldn't be started";
    }
    const int exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return QByteArray::number(exitStatus) + ' ' + output_.Content(u"output"_qs);
}

} // namespace e2e
