// SPDX-License-Identifier: MIT
//
// Anchor: keeps the controls of a window in place when the window is resized, and the window's place on
// screen between two runs of the program. Controls are the widgets that lie directly in the window. Each
// tells by four letters, T or F for its left, top, right and bottom, on which edges of the window it hangs;
// they stand with a "*/" in front of its property "Tag". "TTTT*/" stretches with the window, "FFTT*/" moves
// with the lower right corner, "TTFF*/" stays. A control whose "Tag" has no "*/" is left alone.
//
//     box->setProperty("Tag", "TTTF*/a text of the box's own");
//     auto* anchor = new Anchor(*window, "AnchorCtrl,Positions,frmFind,1110|540");
//     anchor->DoInit(4500, 6000); // at the end of the window's constructor
//     ...
//     anchor->DoResize(); // in resizeEvent
//
// Positions and least sizes are in twips, of which a pixel has 15; all else is in pixels.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

class QWidget;

namespace windowing {

class Anchor final : public QObject
{
    Q_OBJECT

public:
    // Belongs to `window`. `Positions` tells where the window's place is kept, see SetPositions.
    explicit Anchor(QWidget& window, QString Positions = {});

    // Saves where the window stands, unless it is minimised or fills the screen. Only after DoInit.
    ~Anchor() override;

    // Keeps a window from being painted, until UnFreeze; with `redraw` that paints it at once.
    static void Freeze(QWidget& window);
    static void UnFreeze(QWidget& window, bool redraw);

    // Lays the controls out for the window's current size. A window that is smaller than it may be gets its
    // least size first, unless it is minimised, which stops it, or fills the screen.
    void DoResize();

    // Puts the window where it stood last, unless that is outside all screens by now. Takes the letters off
    // the controls' tags, and the current size as what DoResize starts from. A missing number leaves the
    // least size unchanged; at first it is 0.
    void DoInit(std::optional<int> MinHeight = {}, std::optional<int> MinWidth = {});

    // Whether DoInit put the window where it stood last.
    bool IsRestored() const { return isRestored_; }

    // Four parts, "application,section,window,default place", such as
    // "AnchorCtrl,Positions,frmMain,1110|540". The place is kept in the user's settings under application and
    // section with the key window & "Pos", as Left, "|", Top. With less than four parts nothing is kept.
    const QString& Positions() const { return Positions_; }
    void SetPositions(const QString& Positions) { Positions_ = Positions; }

    // With it the window is painted during DoResize too.
    void SetNoFreeze(bool noFreeze) { noFreeze_ = noFreeze; }

Q_SIGNALS:
    // DoResize is about to move the controls. The window has its new size.
    void BeforeResize();

    // It has; by how much the window grew since the last time.
    void AfterResize(int heightChange, int widthChange);

private:
    // A control and its four letters.
    struct Control
    {
        QPointer<QWidget> widget;
        QString flags;
    };

    void RestorePosition();
    void SavePosition() const;
    bool IsNormal() const;
    void KeepLeastSize();

    QWidget& window_;
    QString Positions_;
    std::vector<Control> Flags_; // of those that have letters
    int MinHeight_ = 0;          // twips
    int MinWidth_ = 0;
    QSize last_;
    bool noFreeze_ = false;
    bool isInitialised_ = false;
    bool isResizing_ = false;
    bool isRestored_ = false;
};

} // namespace windowing
