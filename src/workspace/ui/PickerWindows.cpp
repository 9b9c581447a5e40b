// SPDX-License-Identifier: MIT
#include "workspace/ui/PickerWindows.h"

#include "actions/DateTokens.h"
#include "workspace/ui/CounterBlocks.h"
#include "workspace/ui/Fields.h"
#include "workspace/ui/Mnemonics.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace workspace {
namespace {

constexpr Qt::WindowFlags PickerFlags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                        Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                                        Qt::WindowStaysOnTopHint;

QStringList Tokens(std::initializer_list<const char16_t*> words)
{
    QStringList tokens;
    for (const char16_t* word : words) {
        tokens << QLatin1Char('$') + QString::fromUtf16(word) + QLatin1Char('$');
    }
    return tokens;
}

} // namespace

PickerWindow::PickerWindow(QLatin1String name, const QString& title, QWidget* owner)
    : QDialog(owner, PickerFlags)
{
    setObjectName(name);
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
}

void PickerWindow::AddOk(QVBoxLayout& column, QLatin1String name)
{
    QPushButton* ok = NewButton(name, tr("OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    QHBoxLayout& row = AddRow(column);
    row.addStretch(1);
    row.addWidget(ok);
    AssignMnemonics(*this);
}

void PickerWindow::OpenBelow(const QComboBox& combo)
{
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    constexpr int buttons = 5; // room for those of the title bar, each about as wide as it is high
    const int titleWidth = fontMetrics().horizontalAdvance(windowTitle()) + buttons * titleBar;
    resize(sizeHint().expandedTo(QSize(titleWidth, 0))); // adjustSize would cut it short on a small screen
    const QRect screen = combo.screen()->availableGeometry();
    const QPoint place = combo.mapToGlobal(QPoint(combo.width() / 2 - width() / 2, combo.height()));
    const int right = screen.right() + 1 - width();
    const int bottom = screen.bottom() + 1 - height() - titleBar;
    move(qMax(screen.left(), qMin(place.x(), right)), qMax(screen.top(), qMin(place.y(), bottom)));
    show();
    activateWindow();
}

FormatList DateFormats()
{
    return {QLatin1String("frmDateFormat"),
            QLatin1String("cmbDateFormat"),
            QLatin1String("cmdDateFormatOk"),
            PickerWindow::tr("Select Date Format"),
            Tokens({u"date_long",  u"yyyy",     u"yy",           u"mm",       u"month",
                    u"dd",         u"weekday",  u"weekday_name", u"mmddyy",   u"mmddyyyy",
                    u"ddmmyy",     u"ddmmyyyy", u"yymmdd",       u"yyyymmdd", u"mm_dd_yy",
                    u"mm_dd_yyyy", u"dd_mm_yy", u"dd_mm_yyyy",   u"yy_mm_dd", u"yyyy_mm_dd"}),
            &model::AppState::LastDateToken};
}

FormatList TimeFormats()
{
    return {QLatin1String("frmTimeFormat"),
            QLatin1String("cmbTimeFormat"),
            QLatin1String("cmdTimeFormatOk"),
            PickerWindow::tr("Select Time Format"),
            Tokens({u"time_12hrs", u"time_24hrs", u"hour", u"min", u"sec", u"hhmmss", u"hh_mm_ss"}),
            &model::AppState::LastTimeToken};
}

FormatList PictureDateFormats()
{
    return {QLatin1String("frmEDateFormat"),
            QLatin1String("cmbEDateFormat"),
            QLatin1String("cmdEDateFormatOk"),
            PickerWindow::tr("Select Picture taken Date/Time Format"),
            DateFormats().tokens + TimeFormats().tokens,
            &model::AppState::LastDateToken,
            true};
}

FormatPicker::FormatPicker(const FormatList& list, const QString& entry, model::AppState& state,
                           QWidget* owner)
    : PickerWindow(list.window, list.title, owner),
      current_(entry == QLatin1String("$current_date$") || entry == QLatin1String("$current_time$")),
      ofPicture_(list.ofPicture),
      now_(model::Clock().Now()),
      tokens_(new QComboBox),
      example_(new QLabel)
{
    QString& remembered = state.*list.remembered;
    tokens_->setObjectName(list.combo);
    tokens_->addItems(list.tokens);
    tokens_->setMaxVisibleItems(tokens_->count());
    tokens_->setCurrentIndex(qMax(0, tokens_->findText(remembered)));
    int widest = 0; // so that the window keeps its size
    for (const QString& token : list.tokens) {
        widest = qMax(widest, example_->fontMetrics().horizontalAdvance(Example(token)));
    }
    example_->setMinimumWidth(widest);

    auto* column = new QVBoxLayout(this);
    auto* fields = new QFormLayout;
    fields->addRow(tr("Format:"), tokens_);
    fields->addRow(new QLabel(tr("Example:")), example_); // no field, so without a letter
    column->addLayout(fields);
    if (!current_ && !ofPicture_) {
        column->addWidget(NewHint(tr("Pick a format and close this window to use the date and time of each "
                                     "file. OK uses the current ones.")));
    }
    AddOk(*column, list.ok);

    ShowExample();
    connect(tokens_, &QComboBox::currentTextChanged, this, &FormatPicker::ShowExample);
    connect(tokens_, &QComboBox::textActivated, this, [this, &remembered](const QString& token) {
        Q_EMIT Wrote(TokenToWrite(token));
        remembered = token;
    });
}

QString FormatPicker::TokenToWrite(const QString& token) const
{
    if (ofPicture_) {
        return QLatin1String("$Exif_date_") + token;
    }
    return current_ ? token : QLatin1String("$mod_") + token.mid(1);
}

QString FormatPicker::Example(const QString& token) const
{
    // The tokens listed mean the same in every action.
    const auto meaning = ofPicture_ ? actions::PictureDateTokenOf(token)
                                    : actions::DateTokenOf(TokenToWrite(token), model::ActionKind::Prefix);
    return !meaning || meaning->form == actions::DateForm::None ? tr("(no text)")
                                                                : actions::DateText(*meaning, now_);
}

void FormatPicker::ShowExample()
{
    example_->setText(Example(tokens_->currentText()));
    tokens_->setAccessibleDescription(example_->text());
}

void FormatPicker::accept()
{
    if (!ofPicture_) {
        Q_EMIT Wrote(tokens_->currentText());
    }
    QDialog::accept();
}

frmRandom::frmRandom(model::AppState& state, model::RandomSource& random, QWidget* owner)
    : PickerWindow(QLatin1String("frmRandom"), tr("Random Strings"), owner),
      state_(state),
      mask_(state.LastMask)
{
    auto* column = new QVBoxLayout(this);
    column->addWidget(new MaskBlockWidget(QLatin1String("txtRandomMask"), QLatin1String("cmdRandomTest"),
                                          mask_, MaskBlockWidget::Help::Long, binder_, random));
    AddOk(*column, QLatin1String("cmdRandomOk"));
}

void frmRandom::done(int result)
{
    state_.LastMask = mask_;
    Q_EMIT Wrote(QLatin1String("$Rand$_") + mask_);
    QDialog::done(result);
}

} // namespace workspace
