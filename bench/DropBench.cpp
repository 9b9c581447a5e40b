// SPDX-License-Identifier: MIT
//
// How long a silent rename drop takes, from the start of the process to its end, beside a loop of bare system
// calls (rename_loop.c). The two run in turn, each in a folder of its own, since the machine's speed drifts.
//
// The files are made once and stay: a run renames a000001 to b000001 and so on, the next one back. Right
// after 100,000 files were deleted, ext4 takes long to make as many.
//
// usage: quillmark_drop_bench QUILLMARK RENAME_LOOP FOLDER COUNT ROUNDS
// Prints one line, its fields parted by tabs: COUNT, median of the drop, median of the loop (ms), ratio of
// the two.
#include "Timing.h"
#include "documents/RenameDocument.h"

#include <QString>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using bench::Median;

using Arguments = std::vector<std::string>;

std::string NameOf(char prefix, int number)
{
    const std::string digits = std::to_string(number);
    return prefix + std::string(6 - digits.size(), '0') + digits;
}

// A folder of `count` empty files, all named with the prefix 'a' or all with 'b'.
class FlippingFiles
{
public:
    // Takes over what an earlier benchmark left, and makes what is missing.
    FlippingFiles(const fs::path& folder, int count) : folder_(folder), count_(count)
    {
        fs::create_directories(folder);
        for (int number = 1; number <= count; ++number) {
            const fs::path file = folder / NameOf('a', number);
            const fs::path other = folder / NameOf('b', number);
            if (fs::exists(other)) {
                fs::rename(other, file);
            } else if (!fs::exists(file)) {
                std::ofstream{file};
            }
        }
    }

    const fs::path& Folder() const { return folder_; }
    char Prefix() const { return prefix_; }
    char NextPrefix() const { return prefix_ == 'a' ? 'b' : 'a'; }

    // To be called after a run; throws if it left a file behind.
    void Flip()
    {
        prefix_ = NextPrefix();
        for (int number = 1; number <= count_; ++number) {
            const fs::path file = folder_ / NameOf(prefix_, number);
            if (!fs::exists(file)) {
                throw std::runtime_error(file.string() + " is missing after a run");
            }
        }
    }

private:
    fs::path folder_;
    int count_;
    char prefix_ = 'a';
};

// Milliseconds from start to end of a process that runs in `folder`. Throws if it fails.
double TimeOf(const Arguments& arguments, const fs::path& folder)
{
    std::vector<char*> argv;
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());

    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = 0;
    const bool ran = posix_spawn(&process, argv.front(), &actions, nullptr, argv.data(), environ) == 0 &&
                     waitpid(process, &status, 0) == process;
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;

    posix_spawn_file_actions_destroy(&actions);
    if (!ran || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw std::runtime_error(arguments.front() + " could not be run to its end");
    }
    return taken.count();
}

// A recipe that gives the files the names NameOf(prefix, 1), NameOf(prefix, 2), ...
fs::path WriteRecipe(const fs::path& folder, char prefix)
{
    actions::RenameOptions options;
    for (auto& entry : options.List3.entries) {
        entry.Selected = entry.text == model::NameOf(model::ActionKind::ReplaceAll);
    }
    actions::ValueControls& value = options.replaceAll.cmbAll;
    value.combo = QStringLiteral("$Counter$");
    value.counter.text[actions::CounterBlock::PadTo] = QStringLiteral("6");
    value.counter.text[actions::CounterBlock::Prefix] = QChar::fromLatin1(prefix);
    const fs::path path = folder / (std::string("to-") + prefix + ".rnp");
    if (!documents::SaveRenameDrop(options, QString::fromStdString(path.string())).IsOk()) {
        throw std::runtime_error(path.string() + " could not be written");
    }
    return path;
}

Arguments DropOver(const std::string& program, const fs::path& recipes, const FlippingFiles& files, int count)
{
    Arguments arguments{program, WriteRecipe(recipes, files.NextPrefix()).string()};
    for (int number = 1; number <= count; ++number) {
        arguments.push_back(NameOf(files.Prefix(), number));
    }
    return arguments;
}

// The arguments of 100,000 files need more room than processes are given by default: a quarter of the stack's
// limit.
void MakeRoomForArguments()
{
    rlimit limit{};
    getrlimit(RLIMIT_STACK, &limit);
    constexpr rlim_t wanted = 256UL << 20U;
    if (limit.rlim_cur != RLIM_INFINITY && limit.rlim_cur < wanted) {
        limit.rlim_cur = std::min(wanted, limit.rlim_max);
        setrlimit(RLIMIT_STACK, &limit);
    }
}

void Run(const Arguments& arguments)
{
    const std::string& program = arguments.at(1);
    const std::string& loop = arguments.at(2);
    const fs::path folder = fs::absolute(arguments.at(3));
    const int count = std::stoi(arguments.at(4));
    const int rounds = std::stoi(arguments.at(5));

    FlippingFiles dropped(folder / "drop", count);
    FlippingFiles looped(folder / "loop", count);
    setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1); // nobody's settings
    MakeRoomForArguments();

    std::vector<double> drops;
    std::vector<double> loops;
    for (int round = 0; round <= rounds; ++round) {
        const double drop = TimeOf(DropOver(program, folder, dropped, count), dropped.Folder());
        dropped.Flip();
        const double bare =
            TimeOf({loop, {looped.Prefix()}, {looped.NextPrefix()}, std::to_string(count)}, looped.Folder());
        looped.Flip();
        if (round > 0) { // the first round warms up
            drops.push_back(drop);
            loops.push_back(bare);
        }
    }
    std::cout << count << '\t' << Median(drops) << '\t' << Median(loops) << '\t'
              << Median(drops) / Median(loops) << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 6) {
        std::cerr << "usage: quillmark_drop_bench QUILLMARK RENAME_LOOP FOLDER COUNT ROUNDS\n";
        return 2;
    }
    try {
        Run(Arguments(argv, argv + argc));
    } catch (const std::exception& error) {
        std::cerr << "quillmark_drop_bench: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
