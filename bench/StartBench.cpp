// SPDX-License-Identifier: MIT
//
// How long the program takes from its start to the first painted main window, on a folder of many files,
// beside a program that only shows an empty main window of the toolkit. Both are this executable, which then
// ends at the first paint; their whole processes are timed in turn.
//
// usage: quillmark_start_bench FOLDER ROUNDS
// Makes FOLDER with its files if it isn't there. Prints a line, its fields parted by tabs: what, files,
// median in ms, yardstick, ratio, wanted.
#include "Timing.h"
#include "app/ui/Windows.h"
#include "workspace/ui/ReadableStyle.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QProcess>
#include <QStyle>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

namespace {

namespace fs = std::filesystem;
using bench::Median;

constexpr int FileCount = 1'000;

// Ends the process once a window has been painted.
class EndAtFirstPaint final : public QObject
{
public:
    EndAtFirstPaint() { qApp->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            QCoreApplication::postEvent(this, new QEvent(QEvent::User)); // comes when the paint is done
        }
        return false;
    }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::User) {
            std::_Exit(0); // how the process ends isn't measured
        }
        return QObject::event(event);
    }
};

int RunOurs(QApplication& application, const QString& folder)
{
    QApplication::setStyle(new workspace::ReadableStyle(QApplication::style()->name()));
    const EndAtFirstPaint end;
    const app::Windows windows(platform::ProgramFolder(folder + QStringLiteral("/program")), {}, [] {});
    return application.exec();
}

int RunEmpty(QApplication& application)
{
    const EndAtFirstPaint end;
    QMainWindow window;
    window.resize(960, 720);
    window.show();
    return application.exec();
}

void MakeFiles(const fs::path& folder)
{
    fs::create_directories(folder / "program");
    fs::create_directories(folder / "files");
    for (int file = 0; file < FileCount; ++file) {
        std::ofstream(folder / "files" / ("IMG_" + std::to_string(file) + ".jpg")) << file;
    }
    // The last folder is the first line of the settings.
    std::ofstream(folder / "program" / "Quillmark.ini") << fs::absolute(folder / "files").string() << "\r\n";
}

double TimeOf(const QStringList& arguments)
{
    QElapsedTimer timer;
    timer.start();
    if (QProcess::execute(QCoreApplication::applicationFilePath(), arguments) != 0) {
        throw std::runtime_error("a start failed");
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

int Measure(const QString& folder, int rounds)
{
    if (!fs::exists(folder.toStdString())) {
        MakeFiles(folder.toStdString());
    }
    std::vector<double> ours;
    std::vector<double> empty;
    for (int round = 0; round <= rounds; ++round) {
        const double oursNow = TimeOf({QStringLiteral("ours"), folder});
        const double emptyNow = TimeOf({QStringLiteral("empty"), folder});
        if (round > 0) { // the first one warms the caches
            ours.push_back(oursNow);
            empty.push_back(emptyNow);
        }
    }
    std::cout << "start to the first painted window\t" << FileCount << '\t' << Median(ours)
              << "\tan empty window: " << Median(empty) << " ms\t" << Median(ours) / Median(empty)
              << "\t<= 2.0\n";
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QString mode = QString::fromLocal8Bit(argc == 3 ? argv[1] : "");
    const QString second = QString::fromLocal8Bit(argc == 3 ? argv[2] : "");
    if (mode == QLatin1String("ours") || mode == QLatin1String("empty")) {
        QApplication application(argc, argv);
        return mode == QLatin1String("ours") ? RunOurs(application, second) : RunEmpty(application);
    }
    if (second.toInt() < 1) {
        std::cerr << "usage: quillmark_start_bench FOLDER ROUNDS\n";
        return 2;
    }
    const QCoreApplication application(argc, argv);
    return Measure(mode, second.toInt());
}
