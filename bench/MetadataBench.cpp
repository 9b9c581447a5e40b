// SPDX-License-Identifier: MIT
//
// How long pictures and music take to be read, beside a loop of bare system calls that opens each file, reads
// the same bytes and closes it (read_loop.c). The files are made once and stay.
//
// usage: quillmark_metadata_bench FOLDER ROUNDS
// Prints lines, their fields parted by tabs: what, files, median in ms, yardstick, ratio, wanted.
#include "Timing.h"
#include "metadata/ExifBuilder.h"
#include "metadata/Mp3Builder.h"
#include "metadata/clsEXIF.h"
#include "metadata/clsID3.h"
#include "read_loop.h"

#include <QElapsedTimer>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;
using bench::Median;
using bench::TimeOf;
using testing_support::ExifBuilder;
using testing_support::Id3Frame;

constexpr int FileCount = 5'000;

// As a camera makes it, with its first bytes of pixels.
std::string Picture()
{
    ExifBuilder exif;
    exif.Add(271, 2, 6, "Maker").Add(272, 2, 12, "Model 12345").Add(274, 3, 1, exif.Number(1, 2));
    exif.Add(282, 5, 1, exif.Fraction(72, 1)).Add(283, 5, 1, exif.Fraction(72, 1)).Add(296, 3, 1, "\2");
    exif.Add(306, 2, 20, "2009:05:30 12:04:04").Add(531, 3, 1, "\2");
    for (const int tag : {33434, 33437, 37122, 37378, 37381, 37386, 41486, 41487}) {
        exif.Add(tag, 5, 1, exif.Fraction(28, 10), true);
    }
    for (const int tag : {34850, 34855, 37383, 37384, 37385, 40961, 40962, 40963, 41495}) {
        exif.Add(tag, 3, 1, exif.Number(3, 2), true);
    }
    exif.Add(36864, 7, 4, "0210", true).Add(36867, 2, 20, "2009:05:30 12:04:04", true);
    std::string picture = exif.Picture();
    picture.resize(8'192, '\x5A');
    return picture;
}

QByteArray Tag(qsizetype pictureSize)
{
    QByteArray frames;
    for (const char* id : {"TIT2", "TPE1", "TALB", "TYER", "TRCK", "TCON", "TCOM", "TPE2", "TENC", "TPUB"}) {
        frames += Id3Frame(id, QByteArray("\0A text as it is", 16));
    }
    frames += Id3Frame("APIC", QByteArray("\0image/png\0\3\0", 13) + QByteArray(pictureSize, '\x5A'));
    return testing_support::Id3Tag(3, frames + QByteArray(1'000, '\0'));
}

void MakeFile(const fs::path& path, std::string_view content)
{
    if (!fs::exists(path)) {
        std::ofstream(path, std::ios::binary) << content;
    }
}

// Times both over all files, in turn, with the files warm.
void Measure(const char* what, const std::vector<std::string>& paths, const std::vector<ReadPart>& parts,
             int rounds, const char* wanted, const std::function<bool(const QString& path)>& load)
{
    std::vector<QString> names;
    names.reserve(paths.size());
    std::transform(paths.begin(), paths.end(), std::back_inserter(names),
                   [](const std::string& path) { return QString::fromStdString(path); });
    std::vector<double> ours;
    std::vector<double> loops;
    for (int round = 0; round <= rounds; ++round) {
        const double our = TimeOf([&] {
            if (!std::all_of(names.begin(), names.end(), load)) {
                throw std::runtime_error("a file wasn't read");
            }
        });
        const double loop = TimeOf([&] {
            for (const std::string& path : paths) {
                read_loop(path.c_str(), parts.data(), static_cast<int>(parts.size()));
            }
        });
        if (round > 0) {
            ours.push_back(our);
            loops.push_back(loop);
        }
    }
    std::cout << what << '\t' << paths.size() << '\t' << Median(ours) << "\tread loop: " << Median(loops)
              << " ms\t" << Median(ours) / Median(loops) << '\t' << wanted << '\n';
}

void MeasurePictures(const fs::path& folder, int rounds)
{
    std::vector<std::string> paths;
    for (int file = 0; file < FileCount; ++file) {
        paths.push_back(folder / ("IMG_" + std::to_string(file) + ".jpg"));
        MakeFile(paths.back(), Picture());
    }
    metadata::clsEXIF exif({});
    QStringList lines;
    Measure("EXIF loads", paths, {{0, 4'096}}, rounds, "<= 1.5", [&](const QString& path) {
        exif.SetImageFile(path);
        return exif.ReadStatus() == metadata::clsEXIF::Status::Read;
    });
    Measure("EXIF loads with all lines", paths, {{0, 4'096}}, rounds, "-", [&](const QString& path) {
        exif.SetImageFile(path);
        return exif.ListInfo(lines).isEmpty();
    });
}

// What the reader needs: header, tag, the end of the file, and the chunk of the first
// frame.
std::vector<ReadPart> PartsOf(const QByteArray& tag, const QByteArray& audio)
{
    const long end = static_cast<long>(tag.size() + audio.size());
    return {{0, 10},
            {10, static_cast<long>(tag.size()) - 10},
            {end - 15, 143},
            {static_cast<long>(tag.size()), 20'480}};
}

void MeasureMusic(const char* what, const fs::path& folder, int count, qsizetype pictureSize, int rounds,
                  const char* wanted)
{
    const QByteArray tag = Tag(pictureSize);
    const QByteArray audio = testing_support::Audio(0xFFFB9000, {}, 40'000);
    const QByteArray content = tag + audio + testing_support::Id3v1("Title", "Artist", "Comment", 17);
    std::vector<std::string> paths;
    for (int file = 0; file < count; ++file) {
        const std::string name = std::to_string(pictureSize) + "_" + std::to_string(file) + ".mp3";
        paths.push_back(folder / name);
        MakeFile(paths.back(), content.toStdString());
    }
    metadata::clsID3 id3;
    Measure(what, paths, PartsOf(tag, audio), rounds, wanted, [&](const QString& path) {
        id3.SetFileName(path);
        return !id3.Title.isEmpty();
    });
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: quillmark_metadata_bench FOLDER ROUNDS\n";
        return 2;
    }
    try {
        const fs::path folder = fs::absolute(argv[1]);
        fs::create_directories(folder);
        const int rounds = std::stoi(argv[2]);
        MeasurePictures(folder, rounds);
        MeasureMusic("ID3 loads", folder, FileCount, 2'000, rounds, "<= 1.5");
        MeasureMusic("ID3 loads, tags of 20 MB", folder, 3, 20'000'000, rounds, "-");
    } catch (const std::exception& failure) {
        std::cerr << "quillmark_metadata_bench: " << failure.what() << '\n';
        return 1;
    }
}
