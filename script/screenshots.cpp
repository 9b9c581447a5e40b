// SPDX-License-Identifier: MIT
//
// Writes the pictures of the documentation: the main window, the rename workspace with each panel, and the
// windows around them.
// What they show is made up here, in a temporary folder, and is the same each time; only the examples in the
// format pickers are of the day.
//
//   quillmark_screenshots FOLDER [--dark] [--size 800x600]
//
// QT_SCALE_FACTOR=2 gives them as on a screen of 200 percent.
#include "app/ui/Windows.h"
#include "app/ui/frmSplash.h"
#include "documents/ui/frmRenDrop.h"
#include "documents/ui/frmRenListMan.h"
#include "fileview/ui/ListViewEditable.h"
#include "metadata/ui/formExif.h"
#include "platform/TextFile.h"
#include "workspace/ui/ReadableStyle.h"
#include "workspace/ui/frmLog.h"
#include "workspace/ui/frmRenamer.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>

#include <memory>

namespace {

using model::ActionKind;

const QStringList SampleNames{QStringLiteral("IMG_4031.JPG"),    QStringLiteral("IMG_4032.JPG"),
                              QStringLiteral("IMG_4033.JPG"),    QStringLiteral("IMG_4034.JPG"),
                              QStringLiteral("IMG_4037.JPG"),    QStringLiteral("IMG_4040.JPG"),
                              QStringLiteral("Tram 28.jpeg"),    QStringLiteral("sunset at the river.JPG"),
                              QStringLiteral("packing list.txt")};

const QString SampleFolder = QStringLiteral("/home/lisa/Pictures/Lisbon/");

QPalette DarkPalette()
{
    QPalette dark;
    const QColor window(0x2d, 0x2f, 0x33);
    dark.setColor(QPalette::Window, window);
    dark.setColor(QPalette::Button, QColor(0x3a, 0x3d, 0x42));
    dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
    dark.setColor(QPalette::AlternateBase, window);
    dark.setColor(QPalette::ToolTipBase, window);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        dark.setColor(role, QColor(0xe6, 0xe6, 0xe6));
        dark.setColor(QPalette::Disabled, role, QColor(0x80, 0x83, 0x88));
    }
    dark.setColor(QPalette::PlaceholderText, QColor(0xa0, 0xa3, 0xa8));
    dark.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xc8));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

void Save(QWidget& window, const QString& folder, const QString& name)
{
    window.show();
    QCoreApplication::processEvents();
    const QString path = folder + QLatin1Char('/') + name + QLatin1String(".png");
    if (!window.grab().save(path)) {
        QTextStream(stderr) << "Can't write " << path << '\n';
        std::exit(1);
    }
}

// A workspace with sample rows, and its window.
class Studio
{
public:
    explicit Studio(QString outFolder) : outFolder_(std::move(outFolder)), programFolder_(folder_.path())
    {
        const QString path = folder_.path() + QLatin1String("/Lisbon/");
        QDir().mkpath(path);
        platform::FileSystem files;
        for (const QString& name : SampleNames) {
            QFile(path + name).open(QIODevice::WriteOnly);
            list_.AddFile(path, name, files);
        }
        list_.SetCheckedAll(true);
        state_.CheckedCount = list_.Count();
        state_.AutoValidate = 1;
        host_.Attach(window_.HostControls());
        workspace_.Refreshrnm();
        FillOptions();
        window_.ShowOptions();
    }

    void Resize(const QSize& size) { window_.resize(size); }

    // The window with the panel of `kind`.
    void ShootPanel(ActionKind kind)
    {
        Show(kind);
        const QString name = model::NameOf(kind).toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
        Shoot(window_, QLatin1String("workspace-") + name);
    }

    // A preview, two names written by hand, and what the validation says.
    void ShootHero()
    {
        Select({ActionKind::ReplaceAll});
        Show(ActionKind::ReplaceAll);
        workspace_.cmdPreview_Click();
        workspace_.grid.SetPreview(5, workspace_.grid.Row(4).preview);
        workspace_.grid.SetPreview(9, workspace_.grid.Row(9).original);
        workspace_.cmdValidate_Click();
        workspace_.grid.AnnounceChanges();
        Shoot(window_, QStringLiteral("workspace"));
    }

    void ShootLog()
    {
        const QString path = folder_.path() + QLatin1String("/templog.log");
        QStringList lines;
        for (int row = 1; row <= workspace_.grid.RowCount(); ++row) {
            const QString result =
                row == 5 ? QStringLiteral("File already exists") : QStringLiteral("Rename Successful");
            lines << QStringList{SampleFolder, workspace_.grid.Row(row).original,
                                 workspace_.grid.Row(row).preview, result}
                         .join(QLatin1String(" : "));
        }
        if (platform::WriteDocument(path, lines).IsOk()) {
            workspace::frmLog log(path);
            Shoot(log, QStringLiteral("log"));
        }
    }

    // The list windows, opened as by a person.
    void ShootReplaceLists()
    {
        for (const auto& [button, list] :
             {std::pair("cmdReplaceOptions", "frmSReplace"), std::pair("Command3", "frmExtReplace")}) {
            window_.findChild<QPushButton*>(QLatin1String(button))->click();
            auto* opened = window_.findChild<QWidget*>(QLatin1String(list));
            Shoot(*opened, QLatin1String(list));
            opened->close();
        }
    }

    // The pickers that a pick of these entries opens.
    void ShootPickers()
    {
        workspace::Pickers pickers(state_, random_);
        QComboBox combo;
        combo.setEditable(true);
        state_.MetadataChoice = 6; // the date of a picture, which opens a picker of its own
        for (const char* entry :
             {"$modified_date$", "$current_time$", "$Random String$", "$MP3 Data$", "$Exif Data$"}) {
            pickers.Pick(QLatin1String(entry), combo, workspace::MaskFrom::Window);
            QApplication::processEvents();
            for (QWidget* each : QApplication::topLevelWidgets()) {
                if (each->isVisible() && each->inherits("QDialog")) {
                    Shoot(*each, each->objectName());
                }
            }
        }
    }

    void ShootExifViewer()
    {
        metadata::formExif viewer;
        viewer.ShowFile(QStringLiteral(QUILLMARK_TEST_DATA "/exif-first-little-endian.jpg"));
        viewer.findChild<QLabel*>()->setText(SampleFolder + SampleNames.first());
        Shoot(viewer, viewer.objectName());
    }

    void ShootDrop()
    {
        std::vector<model::RenameRow> rows{workspace_.grid.Row(1)};
        rows.front().path = SampleFolder;
        workspace::GridPre grid;
        grid.SetRows(std::move(rows));
        documents::frmRenDrop drop(grid, [] {});
        drop.adjustSize();
        Shoot(drop, drop.objectName());
    }

    void ShootManager()
    {
        for (const char* name : {"holiday pictures", "music by number", "no blanks"}) {
            const QString path = programFolder_.PathOf(QStringLiteral("RenConfigs/"));
            QDir().mkpath(path);
            QFile(path + QLatin1String(name) + QLatin1String(".rfg")).open(QIODevice::WriteOnly);
        }
        documents::frmRenListMan manager(workspace_.options, programFolder_, [] {});
        manager.Open();
        Shoot(manager, manager.objectName());
    }

    // The file list: sorted by a tinted column, with its menu open, and with a cell in edit.
    void ShootFileList()
    {
        fileview::FileList rows;
        fileview::ListViewEditable list(rows, host_, state_);
        using fileview::ListProperties;
        list.Set(&ListProperties::Checkboxes, true);
        list.Set(&ListProperties::FullRowSelect, true);
        list.Set(&ListProperties::AutoPopupMenu, true);
        list.Set(&ListProperties::HighlightColumn, true);
        list.resize(860, 300);
        for (const QString& name : SampleNames) {
            list.AddFile(folder_.path() + QLatin1String("/Lisbon/"), name);
            const int row = rows.Count();
            rows.SetCell(row, fileview::FileList::Path, SampleFolder);
            rows.SetCell(row, fileview::FileList::Size, QStringLiteral("%1KB").arg(2'960 - row * 317 % 900));
            rows.SetCell(row, fileview::FileList::Date,
                         QStringLiteral("2024/6/%1 10:2%2:07").arg(11 + row).arg(row));
            rows.SetChecked(row, row % 4 != 0);
        }
        const std::array widths{200, 200, 80, 160, 170};
        auto& table = static_cast<QTableView&>(list.ListView());
        for (std::size_t column = 0; column < widths.size(); ++column) {
            table.setColumnWidth(static_cast<int>(column), widths.at(column));
        }
        list.SortCustom(fileview::FileList::Size, true, fileview::ldtNumber);
        list.DoHighlightColumn(fileview::vbLedgerRed, fileview::vbLedgerPureWhite, fileview::FileList::Size,
                               fileview::sizeNone);
        list.SetSelectedItem(3);
        Shoot(list, QStringLiteral("file-list"));
        const QPoint cell = table.visualRect(rows.index(4, fileview::FileList::Type - 1)).center();
        list.Set(&ListProperties::AllowItemEdit, true);
        Click(*table.viewport(), cell, Qt::LeftButton);
        Shoot(list, QStringLiteral("file-list-edit"));
        list.Set(&ListProperties::AllowItemEdit, false);
        Click(*table.viewport(), cell, Qt::RightButton);
        Shoot(list.mnuOptions(), QStringLiteral("file-list-menu"));
        list.mnuOptions().close();
    }

private:
    static void Click(QWidget& widget, const QPoint& at, Qt::MouseButton button)
    {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, widget.mapToGlobal(at), button,
                              type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::NoButton, {});
            QCoreApplication::sendEvent(&widget, &event);
        }
    }

    void FillOptions()
    {
        actions::RenameOptions& options = workspace_.options;
        options.replaceFirst.cmbFirst.combo = QStringLiteral("$Random String$");
        options.replaceFirst.cmbFirst.frameRVisible = true;
        options.replaceMid.cmbMid.combo = QStringLiteral("$Upper_Case$");
        options.replaceLast.cmbLast.combo = QStringLiteral("$AlphaCounter$");
        options.replaceLast.cmbLast.frameAVisible = true;
        options.replaceAll.cmbAll.combo = QStringLiteral("$Counter$");
        options.replaceAll.cmbAll.frameCVisible = true;
        options.replaceAll.cmbAll.counter.text[actions::CounterBlock::Prefix] = QStringLiteral("Lisbon ");
        options.insert.cmbInsert = actions::InsertOptions::Modes().last();
        options.insert.cmbInsertS.combo = QStringLiteral("$Random String$");
        options.insert.cmbInsertS.frameRVisible = true;
        options.suffix.cmbSuffix.combo = QStringLiteral("$AlphaCounter$");
        options.suffix.cmbSuffix.frameAVisible = true;
        options.prefix.cmbPrefix.combo = QStringLiteral("$Counter$");
        options.prefix.cmbPrefix.frameCVisible = true;
        options.extension.change.Set(actions::ExtensionOptions::Option41, true);
        const QString flag = QStringLiteral("n");
        options.replace.ReplaceList = {{flag, QStringLiteral("IMG_"), QStringLiteral("Lisbon ")},
                                       {flag, QStringLiteral("sunset"), QStringLiteral("$Upper_Case$")},
                                       {QStringLiteral("y"), QStringLiteral("JPG"), QString()}};
        options.extension.ExtensionAllValue = QStringLiteral("$Counter$");
        options.clean.chkDigit = options.clean.Check12 = options.clean.Check3 = true;
        options.compose.cmbCompose.combo = QStringLiteral("$Counter$");
        options.compose.cmbCompose.frameCVisible = true;
        options.compose.lstCompose =
            QStringList{QStringLiteral("$foldername$"), QStringLiteral(" - "), QStringLiteral("$Counter$")};
    }

    void Select(std::initializer_list<ActionKind> kinds)
    {
        for (const ActionKind kind : kinds) {
            workspace_.options.List3.entries[static_cast<std::size_t>(kind)].Selected = true;
        }
    }

    void Show(ActionKind kind)
    {
        workspace_.options.List3.currentIndex = static_cast<int>(kind);
        window_.ShowOptions();
    }

    void Shoot(QWidget& window, const QString& name) { Save(window, outFolder_, name); }

    QString outFolder_;
    QTemporaryDir folder_;
    model::AppState state_;
    fileview::FileList list_;
    workspace::WindowHost host_;
    model::Clock clock_;
    model::RandomSource random_;
    platform::ProgramFolder programFolder_;
    workspace::RenameWorkspace workspace_{{state_, list_, host_, clock_, random_, programFolder_}};
    workspace::frmRenamer window_{workspace_,
                                  state_,
                                  random_,
                                  {[](const QString&) { return platform::Status(); }, [] {}, [] {},
                                   [] {
                                   }}};
};

// The main window over a made-up home, and the windows that it opens.
class MainStudio
{
public:
    MainStudio(QString outFolder, const QSize& size) : outFolder_(std::move(outFolder))
    {
        const QString pictures = home_.path() + QStringLiteral("/Pictures/Lisbon/");
        QDir().mkpath(pictures);
        QDir().mkpath(home_.path() + QStringLiteral("/Pictures/Porto"));
        QDir().mkpath(home_.path() + QStringLiteral("/Music"));
        for (const QString& name : SampleNames) {
            QFile file(pictures + name);
            file.open(QIODevice::WriteOnly);
            file.resize(2'000'000 + name.size() * 31'000);
            file.setFileTime(QDateTime(QDate(2024, 6, 12), QTime(10, 20, static_cast<int>(name.size()))),
                             QFileDevice::FileModificationTime);
        }
        qputenv("HOME", home_.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home_.path().toLocal8Bit());
        Write(QStringLiteral("/bookmarks.bks"),
              {QStringLiteral("Holidays"), pictures, QStringLiteral("Bookmark 1"),
               home_.path() + QStringLiteral("/Music")});
        Write(QStringLiteral("/Quillmark.ini"), {pictures, QStringLiteral("allselected")});
        windows_ = std::make_unique<app::Windows>(platform::ProgramFolder(home_.path()), QString(), [] {});
        Main().resize(size);
    }

    void ShootAll()
    {
        HidePaths();
        Shoot(Main(), QStringLiteral("frmMain"));
        for (const auto& [button, window] :
             {std::pair("cmdPref", "frmPref"), std::pair("cmdBookmarks", "frmBookmarks"),
              std::pair("Command5", "frmBName"), std::pair("Command8", "frmListMan"),
              std::pair("Command1", "frmAttr")}) {
            Main().findChild<QPushButton*>(QLatin1String(button))->click();
            HidePaths();
            Shoot(*Main().findChild<QWidget*>(QLatin1String(window)), QLatin1String(window));
        }
        Main().findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(1);
        Shoot(*Main().findChild<QWidget*>(QStringLiteral("frmPref")), QStringLiteral("frmPref-view"));
        Main().findChild<QAction*>(QStringLiteral("command1039"))->trigger();
        Shoot(*Main().findChild<QWidget*>(QStringLiteral("frmHelp")), QStringLiteral("frmHelp"));
        app::frmSplash splash;
        splash.adjustSize();
        Shoot(splash, QStringLiteral("frmSplash"));
    }

private:
    app::frmMain& Main() { return windows_->Main(); }

    void Write(const QString& name, const QStringList& lines)
    {
        if (!platform::WriteDocument(home_.path() + name, lines).IsOk()) {
            std::exit(1);
        }
    }

    // The temporary folder has another name each time.
    void HidePaths()
    {
        const QString shown = QStringLiteral("/home/lisa");
        fileview::FileList& rows = Main().findChild<fileview::ListViewEditable*>()->ListItems();
        for (int row = 1; row <= rows.Count(); ++row) {
            rows.SetCell(row, fileview::FileList::Path,
                         QString(rows.Item(row).Path).replace(home_.path(), shown));
        }
        auto* const log = Main().findChild<QPlainTextEdit*>(QStringLiteral("Text2"));
        log->setPlainText(log->toPlainText().replace(home_.path(), shown));
        log->moveCursor(QTextCursor::End);
        if (auto* const folders = Main().findChild<QListWidget*>(QStringLiteral("lstBookmarks"))) {
            for (int row = 0; row < folders->count(); ++row) {
                folders->item(row)->setText(folders->item(row)->text().replace(home_.path(), shown));
            }
        }
        Main()
            .findChild<QLabel*>(QStringLiteral("Label1"))
            ->setText(QStringLiteral("Jun 13, 2024  09:41:00"));
    }

    void Shoot(QWidget& window, const QString& name) { Save(window, outFolder_, name); }

    QString outFolder_;
    QTemporaryDir home_;
    std::unique_ptr<app::Windows> windows_;
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        QTextStream(stderr) << "usage: quillmark_screenshots FOLDER [--dark] [--size WIDTHxHEIGHT]\n";
        return 2;
    }
    QApplication::setStyle(new workspace::ReadableStyle(QStringLiteral("Fusion")));
    QApplication::setFont(QFont(QStringLiteral("Noto Sans"), 10));
    if (arguments.contains(QLatin1String("--dark"))) {
        QApplication::setPalette(DarkPalette());
    }
    QSize size(1000, 720); // more than the screen that isn't there
    const qsizetype option = arguments.indexOf(QLatin1String("--size"));
    if (option > 0 && option + 1 < arguments.size()) {
        const QStringList sides = arguments[option + 1].split(QLatin1Char('x'));
        size = QSize(sides.first().toInt(), sides.last().toInt());
    }
    Studio studio(arguments[1]);
    studio.Resize(size);
    for (const ActionKind kind : model::AllActionKinds) {
        studio.ShootPanel(kind);
    }
    studio.ShootHero();
    studio.ShootLog();
    studio.ShootReplaceLists();
    studio.ShootPickers();
    studio.ShootExifViewer();
    studio.ShootDrop();
    studio.ShootManager();
    studio.ShootFileList();
    MainStudio(arguments[1], size).ShootAll();
    return 0;
}
