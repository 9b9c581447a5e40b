// SPDX-License-Identifier: MIT
#include "e2e/Program.h"

#include "platform/NameBytes.h"

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace e2e {

namespace {

const QString OutputFile = QStringLiteral("output");

void Require(int error)
{
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), QUILLMARK_EXECUTABLE);
    }
}

// The environment of these tests without what leads to a display or to the user's own files.
std::vector<std::string> EnvironmentIn(const std::string& home)
{
    constexpr std::array<std::string_view, 7> replaced{
        "DISPLAY=",       "WAYLAND_DISPLAY=", "QT_QPA_PLATFORM=", "HOME=",
        "XDG_DATA_HOME=", "XDG_CONFIG_HOME=", "XDG_CACHE_HOME="};
    std::vector<std::string> environment{"QT_QPA_PLATFORM=nonexistent", "HOME=" + home,
                                         "XDG_DATA_HOME=" + home + "data"};
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        bool isKept = true;
        for (const std::string_view name : replaced) {
            isKept = isKept && !text.starts_with(name);
        }
        if (isKept) {
            environment.emplace_back(text);
        }
    }
    return environment;
}

std::vector<char*> PointersTo(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// What is to be done in the new process before the program takes over.
class BeforeStart
{
public:
    BeforeStart(const std::string& folder, const std::string& output)
    {
        Require(posix_spawn_file_actions_init(&actions_));
        Require(posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str()));
        Require(posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
        Require(posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, output.c_str(),
                                                 O_WRONLY | O_CREAT | O_TRUNC, 0600));
        Require(posix_spawn_file_actions_adddup2(&actions_, STDOUT_FILENO, STDERR_FILENO));
    }
    ~BeforeStart() { posix_spawn_file_actions_destroy(&actions_); }
    BeforeStart(const BeforeStart&) = delete;
    BeforeStart& operator=(const BeforeStart&) = delete;

    const posix_spawn_file_actions_t* Actions() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

} // namespace

Program::Ended Program::Run(const QString& folder, const QStringList& arguments) const
{
    const std::string home = platform::ToBytes(home_.Path()).toStdString();
    std::vector<std::string> environment = EnvironmentIn(home);
    std::vector<std::string> command{QUILLMARK_EXECUTABLE};
    for (const QString& argument : arguments) {
        command.push_back(platform::ToBytes(argument).toStdString());
    }
    const BeforeStart before(platform::ToBytes(folder).toStdString(), home + OutputFile.toStdString());
    pid_t process = 0;
    Require(posix_spawn(&process, QUILLMARK_EXECUTABLE, before.Actions(), nullptr, PointersTo(command).data(),
                        PointersTo(environment).data()));
    int status = 0;
    if (waitpid(process, &status, 0) != process) {
        Require(errno);
    }
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), home_.Content(OutputFile)};
}

QStringList Program::LeftBehind() const
{
    QStringList names = home_.Names();
    names.removeAll(OutputFile);
    return names;
}

} // namespace e2e
