// SPDX-License-Identifier: MIT
//
// How long the rename workspace takes for the rows of its grid, without a disk: the preview with three
// actions and with all thirteen, and the validation of rows half of which share their new name with another.
#include "workspace/RenameWorkspace.h"

#include <QDir>

#include <benchmark/benchmark.h>

namespace {

// A workspace without window, and what it stands on.
struct Desk
{
    platform::ProgramFolder programFolder{QDir::tempPath()}; // nothing is written to it here
    model::AppState state;
    model::SilentHost host;
    model::Clock clock;
    model::RandomSource random;
    fileview::FileList mainList;
    workspace::RenameWorkspace workspace{{state, mainList, host, clock, random, programFolder}};

    void Select(model::ActionKind kind)
    {
        for (auto& entry : workspace.options.List3.entries) {
            entry.Selected = entry.Selected || entry.text == model::NameOf(kind);
        }
    }
};

model::RenameRow RowOf(int number)
{
    model::RenameRow row;
    row.original = QStringLiteral("DSC_%1.jpg").arg(number, 6, 10, QLatin1Char('0'));
    row.path = QStringLiteral("/photos/2024/");
    row.size = 1000 + number;
    row.modified = 1'700'000'000 + number;
    row.folder = QStringLiteral("2024");
    row.type = platform::JpegTypeText;
    return row;
}

void FillGrid(workspace::GridPre& grid, int count)
{
    std::vector<model::RenameRow> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (int number = 1; number <= count; ++number) {
        rows.push_back(RowOf(number));
    }
    grid.SetRows(std::move(rows));
}

void MeasurePreview(benchmark::State& state, Desk& desk)
{
    const int count = static_cast<int>(state.range(0));
    FillGrid(desk.workspace.grid, count);
    desk.workspace.cmdPreview_Click();
    for (auto _ : state) {
        desk.workspace.cmdPreview_Click();
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void Preview(benchmark::State& state)
{
    Desk desk;
    auto& options = desk.workspace.options;
    desk.Select(model::ActionKind::ReplaceFirst);
    options.replaceFirst.cmbFirst.combo = QStringLiteral("$mod_yyyy_mm_dd$");
    desk.Select(model::ActionKind::ReplaceMid);
    options.replaceMid.cmbMid.combo = QStringLiteral("$Upper_Case$");
    desk.Select(model::ActionKind::ReplaceLast);
    options.replaceLast.cmbLast.combo = QStringLiteral("$Counter$");
    MeasurePreview(state, desk);
}

// Every action has something to do for every row.
void PreviewOfAll(benchmark::State& state)
{
    Desk desk;
    auto& options = desk.workspace.options;
    for (const model::ActionKind kind : model::AllActionKinds) {
        desk.Select(kind);
    }
    const QString flag = QStringLiteral("n");
    options.replace.ReplaceList = {{flag, QStringLiteral("dsc"), QStringLiteral("harbour")},
                                   {flag, QStringLiteral("0"), QStringLiteral("$Counter$")},
                                   {QStringLiteral("y"), QStringLiteral("X"), QString()}};
    options.replaceFirst.cmbFirst.combo = QStringLiteral("$mod_yyyy_mm_dd$");
    options.replaceMid.cmbMid.combo = QStringLiteral("$Upper_Case$");
    options.replaceLast.cmbLast.combo = QStringLiteral("$Counter$");
    options.replaceAll.cmbAll.combo = QStringLiteral("$Invert_Case$");
    options.insert.cmbInsert = actions::InsertOptions::Modes().at(3);
    options.insert.Text43 = QStringLiteral("r");
    options.insert.cmbInsertS.combo = QStringLiteral("$AlphaCounter$");
    options.suffix.cmbSuffix.combo = QStringLiteral("$filesizeKB$");
    options.prefix.cmbPrefix.combo = QStringLiteral("$foldername$");
    options.length.cmbLength = QStringLiteral("40");
    options.extension.ExtReplaceList = {{flag, QStringLiteral("JPG"), QStringLiteral("jpeg")}};
    options.clean.chkVowel = true;
    options.clean.Check12 = true;
    options.clean.Check10 = true;
    options.compose.lstCompose =
        QStringList{QStringLiteral("$mod_date$"), QStringLiteral("_"), QStringLiteral("$Counter$")};
    MeasurePreview(state, desk);
}

void Validation(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    std::vector<model::RenameRow> rows;
    for (int number = 1; number <= count; ++number) {
        model::RenameRow row = RowOf(number);
        const bool inPair = number % 4 < 2; // 4 and 5, 8 and 9, ...
        row.preview = QStringLiteral("harbour %1.jpg").arg(inPair ? number / 4 * 4 : number);
        rows.push_back(std::move(row));
    }
    Desk desk;
    desk.workspace.grid.SetRows(std::move(rows));
    desk.workspace.cmdValidate_Click();
    for (auto _ : state) {
        desk.workspace.cmdValidate_Click();
    }
    state.SetItemsProcessed(state.iterations() * count);
}

BENCHMARK(Preview)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(7);
BENCHMARK(PreviewOfAll)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(5);
BENCHMARK(Validation)
    ->Arg(100'000)
    ->Arg(200'000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(7);

} // namespace

BENCHMARK_MAIN();
