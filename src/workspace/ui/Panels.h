// SPDX-License-Identifier: MIT
//
// Panels: makes the option panels of the thirteen actions. A panel is a frame with the action's controls,
// bound to the option record that it is given. Its controls carry the names and captions by which recipes and
// people know them.
#pragma once

#include "workspace/ui/CounterBlocks.h"
#include "workspace/ui/ValueBlocks.h"

#include <QCoreApplication>

#include <functional>

class QBoxLayout;
class QGroupBox;
class QHBoxLayout;
class QVBoxLayout;

namespace workspace {

class Panels
{
    Q_DECLARE_TR_FUNCTIONS(Panels)

public:
    explicit Panels(const PanelTools& tools) : tools_(tools) {}

    // The panel of an action, without a parent yet.
    QWidget* NewPanel(model::ActionKind kind, actions::RenameOptions& options) const;

private:
    QWidget* Replace(actions::ReplaceOptions& options) const;
    QWidget* ReplaceFirst(actions::ReplaceFirstOptions& options) const;
    QWidget* ReplaceMid(actions::ReplaceMidOptions& options) const;
    QWidget* ReplaceLast(actions::ReplaceLastOptions& options) const;
    QWidget* ReplaceAll(actions::ReplaceAllOptions& options) const;
    QWidget* Insert(actions::InsertOptions& options) const;
    QWidget* Suffix(actions::SuffixOptions& options) const;
    QWidget* Prefix(actions::PrefixOptions& options) const;
    QWidget* Length(actions::LengthOptions& options) const;
    QWidget* ChangeCase(actions::ChangeCaseOptions& options) const;
    QWidget* Extension(actions::ExtensionOptions& options) const;
    QWidget* Clean(actions::CleanOptions& options) const;
    QWidget* Compose(actions::ComposeOptions& options) const;

    // A captioned box in a row of words and boxes.
    void AddBox(QHBoxLayout& row, const QString& caption, QLatin1String name, QString& value,
                int characters) const;

    // The value combo at the end of `row` and its blocks in the next line of `column`.
    void AddValue(QVBoxLayout& column, QHBoxLayout& row, const QString& caption, model::ActionKind kind,
                  actions::ValueControls& value) const;

    // The two blocks of an action whose values stand in a list of their own, on two tabs.
    QWidget* NewCounterTabs(model::ActionKind kind, actions::CounterBlock& counter,
                            actions::AlphaCounterBlock& letters) const;

    // The parts of the Insert panel of which the mode chooses one. The result puts the right one on show.
    std::function<void()> AddInsertPlaces(QHBoxLayout& row, actions::InsertOptions& options) const;

    QGroupBox* NewKeepFrame(actions::CleanOptions& options) const;

    PanelTools tools_;
};

} // namespace workspace
