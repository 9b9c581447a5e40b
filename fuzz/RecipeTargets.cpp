// SPDX-License-Identifier: MIT
#include "documents/RenameDocument.h"
#include "fuzz/Support.h"
#include "fuzz/Targets.h"

namespace fuzz {

namespace {

using actions::RenameOptions;

QByteArray Saved(const RenameOptions& options, platform::Status (*save)(const RenameOptions&, const QString&))
{
    const QString path = Folder() + QStringLiteral("saved");
    Require(save(options, path));
    return ContentOf(path);
}

void CheckLoaded(RenameOptions& options)
{
    Require(options.List3.entries.size() <= model::ActionKindCount, "there are at most thirteen actions");
    Require(options.List3.currentIndex >= -1 &&
                options.List3.currentIndex < static_cast<int>(options.List3.entries.size()),
            "the current action is in the list");
    // Of the two lines that this frame has, the second tells another one's state: so it changes once more
    // with each round.
    options.replaceFirst.cmbFirst.frameCVisible = false;
}

} // namespace

void ReadRecipe(QByteArrayView document)
{
    RenameOptions options;
    if (!documents::LoadRenameConfig(options, WriteFile("recipe.rfg", document)).IsOk()) {
        RenameOptions untouched;
        untouched.List3 = {};
        Require(options == untouched, "of a file that is refused nothing but the empty action list stays");
        return;
    }
    CheckLoaded(options);
    const QByteArray once = Saved(options, documents::SaveRenameConfig);
    RenameOptions again;
    Require(documents::LoadRenameConfig(again, WriteFile("recipe.rfg", once)));
    Require(Saved(again, documents::SaveRenameConfig) == once, "a recipe that was saved reads the same");
}

void ReadDrop(QByteArrayView document)
{
    RenameOptions options;
    documents::LoadRnp(options, WriteFile("drop.rnp", document));
    CheckLoaded(options);
    const QByteArray once = Saved(options, documents::SaveRenameDrop);
    RenameOptions again;
    documents::LoadRnp(again, WriteFile("drop.rnp", once));
    Require(Saved(again, documents::SaveRenameDrop) == once, "a drop that was saved reads the same");
}

} // namespace fuzz
