// SPDX-License-Identifier: MIT
//
// How long the file list takes: a scan of many folders beside a loop of bare system calls (scan_loop.c), its
// memory a row, sorting, checking and filtering, and how long a window goes without handling events while it
// scans. The files are made once and stay.
//
// usage: quillmark_scan_bench FOLDER ROUNDS
// Prints lines, their fields parted by tabs: what, rows, median in ms or the figure itself, yardstick, ratio,
// wanted.
#include "Timing.h"
#include "fileview/Scanner.h"
#include "fileview/ui/ListViewEditable.h"
#include "scan_loop.h"
#include "workspace/ui/WindowHost.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <malloc.h>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;
using bench::Median;
using bench::TimeOf;

constexpr int FolderCount = 2'000;
constexpr int FilesPerFolder = 100;

void MakeTree(const fs::path& top)
{
    for (int folder = 0; folder < FolderCount; ++folder) {
        const fs::path path = top / ("folder" + std::to_string(folder));
        fs::create_directories(path);
        for (int file = 0; file < FilesPerFolder; ++file) {
            const fs::path name = path / ("IMG_" + std::to_string(folder * FilesPerFolder + file) + ".jpg");
            if (!fs::exists(name)) {
                std::ofstream(name) << std::string(static_cast<std::size_t>(file * 37), 'x');
            }
        }
    }
}

double MedianTimeOf(int rounds, const std::function<void()>& what)
{
    std::vector<double> times;
    times.reserve(static_cast<std::size_t>(rounds));
    for (int round = 0; round < rounds; ++round) {
        times.push_back(TimeOf(what));
    }
    return Median(times);
}

std::size_t HeapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void Print(const char* what, int rows, double figure, const std::string& yardstick, const std::string& ratio,
           const std::string& wanted)
{
    std::cout << what << '\t' << rows << '\t' << figure << '\t' << yardstick << '\t' << ratio << '\t'
              << wanted << '\n';
}

// A list in the core alone, filled from the tree.
struct Stock
{
    explicit Stock(const QString& path)
    {
        settings.Path = path;
        settings.Recursive = true;
    }

    model::AppState state;
    model::SilentHost host;
    fileview::ScanSettings settings;
    fileview::FileList list;
    fileview::Scanner scanner{list, settings, host, state};
};

void MeasureScan(const QString& path, int rounds)
{
    const QByteArray folder = path.toUtf8();
    std::vector<double> ours;
    std::vector<double> loops;
    double bytesPerRow = 0;
    int rows = 0;
    for (int round = 0; round <= rounds; ++round) {
        const std::size_t before = HeapInUse();
        Stock stock(path);
        const double scan = TimeOf([&stock] { stock.scanner.Scan(); });
        rows = stock.list.Count();
        if (rows != FolderCount * (FilesPerFolder + 1)) {
            throw std::runtime_error("the scan didn't find all files");
        }
        bytesPerRow = static_cast<double>(HeapInUse() - before) / rows;
        const double loop = TimeOf([&folder] { scan_loop(folder.constData()); });
        if (round > 0) { // the first one warms the system's memory of the folders
            ours.push_back(scan);
            loops.push_back(loop);
        }
    }
    const double ratio = Median(ours) / Median(loops);
    Print("scan of 2,000 folders", rows, Median(ours), "statx loop: " + std::to_string(Median(loops)) + " ms",
          std::to_string(ratio), "<= 2.0");
    Print("memory of the list, bytes a row", rows, bytesPerRow, "-", "-", "<= 400");
}

void MeasureRows(const QString& path, int rounds)
{
    Stock stock(path);
    stock.scanner.Scan();
    constexpr int rows = 100'000;
    int place = 0;
    stock.list.RemoveIf([&place](const model::FileRow&) { return ++place > rows; });
    const auto sort = [&](const char* what, int column, int dataType, bool byMagnitude) {
        bool ascending = true;
        const double time = MedianTimeOf(rounds, [&] {
            stock.list.SortCustom(column, ascending, dataType, byMagnitude);
            ascending = !ascending;
        });
        Print(what, rows, time, "-", "-", "-");
    };
    using fileview::FileList;
    sort("sort by number", FileList::Size, fileview::ldtNumber, false);
    sort("sort by date", FileList::Date, fileview::ldtDateTime, false);
    sort("sort by magnitude", FileList::Name, fileview::ldtString, true);
    sort("sort by name", FileList::Name, fileview::ldtString, false);
    Print("check all", rows, MedianTimeOf(rounds, [&] { stock.list.SetCheckedAll(true); }), "-", "-", "-");
    Print("invert checks", rows, MedianTimeOf(rounds, [&] { stock.list.InvertAllChecks(); }), "-", "-", "-");
    FileList filtered;
    const auto filter = [&] {
        filtered.Clear();
        filtered.AddRowsOf(stock.list, [](const model::FileRow& row) {
            return row.Text.contains(QLatin1String("g_1"), Qt::CaseInsensitive);
        });
    };
    Print("filter by name", rows, MedianTimeOf(rounds, filter), "-", "-", "-");
}

// The longest time between two moments at which the window handled events, while it scans.
void MeasureResponsiveness(const QString& path)
{
    model::AppState state;
    workspace::WindowHost host;
    fileview::FileList list;
    fileview::ListViewEditable control(list, host, state);
    control.Set(&fileview::ListProperties::Checkboxes, true);
    control.Set(&fileview::ListProperties::Path, path);
    control.Set(&fileview::ListProperties::Recursive, true);
    control.resize(900, 600);
    control.show();
    QApplication::processEvents();
    QElapsedTimer sinceEvents;
    qint64 longest = 0;
    QTimer heartbeat;
    QObject::connect(&heartbeat, &QTimer::timeout, &heartbeat,
                     [&] { longest = std::max(longest, sinceEvents.restart()); });
    heartbeat.start(0);
    sinceEvents.start();
    const double time = TimeOf([&control] { control.Scan(); });
    longest = std::max(longest, sinceEvents.elapsed());
    Print("scan in a window", list.Count(), time, "-", "-", "-");
    Print("longest time without events, ms", list.Count(), static_cast<double>(longest), "-", "-", "<= 50");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: quillmark_scan_bench FOLDER ROUNDS\n";
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    try {
        const fs::path tree(argv[1]);
        MakeTree(tree);
        const QString path = QString::fromLocal8Bit(argv[1]);
        const int rounds = std::stoi(argv[2]);
        MeasureScan(path, rounds);
        MeasureRows(path, rounds);
        MeasureResponsiveness(path);
    } catch (const std::exception& failure) {
        std::cerr << "quillmark_scan_bench: " << failure.what() << '\n';
        return 1;
    }
}
