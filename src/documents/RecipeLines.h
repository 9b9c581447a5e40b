// SPDX-License-Identifier: MIT
//
// The order of a rename document's lines, written down once. RecipeLines walks the options in that order and
// tells a visitor each line; saving and loading are two visitors (RenameDocument.cpp), so writer and reader
// can't part. No line may be added, left out or moved: files in use depend on the positions.
//
// Not in the file, on purpose: the elements of a composed name, the replace lists, the letter case of
// "Replace", and Text18.
#pragma once

#include "actions/RenameOptions.h"

namespace documents {

enum class RecipeForm {
    Config, // .rfg: the masks of All, Insert, Suffix, Prefix and Compose are written empty
    Drop,   // .rnp: these masks are stored
};

// A visitor offers one function a form of line:
//   Text(QString&)                      the text as it stands
//   MaskText(stored, QString& into)     writes `stored`, reads into `into`
//   Boolean(bool&)                      True or False
//   Visibility(stored, bool& into)      True or False; writes `stored`, reads into `into`
//   Button(OptionGroup&, int button)    True or False
//   Check(bool&)                        0 or 1
//   Actions(ActionList&)                lines of the action list: thirteen pairs, and the current index
template<typename Visitor>
class RecipeLines
{
public:
    RecipeLines(Visitor& visitor, RecipeForm form) : visitor_(visitor), form_(form) {}

    // REQUIRES: `options` is not const for a visitor that reads.
    template<typename Options>
    void Visit(Options& options)
    {
        visitor_.Actions(options.List3);
        Boxes(options.replace.txtReplaceC);
        Boxes(options.replace.txtReplaceA); // no line for its letter case
        visitor_.Text(options.replaceFirst.Text1);
        ValueOfReplaceFirst(options.replaceFirst.cmbFirst);
        visitor_.Text(options.replaceMid.Text12);
        visitor_.Text(options.replaceMid.Text13);
        Value(options.replaceMid.cmbMid, Mask::AlwaysStored);
        visitor_.Text(options.replaceLast.Text14);
        Value(options.replaceLast.cmbLast, Mask::AlwaysStored);
        Value(options.replaceAll.cmbAll, Mask::StoredInDrops);
        Insert(options.insert);
        Value(options.suffix.cmbSuffix, Mask::StoredInDrops);
        Value(options.prefix.cmbPrefix, Mask::StoredInDrops);
        Length(options.length);
        ChangeCase(options.changeCase);
        Extension(options.extension);
        Clean(options.clean);
        Compose(options.compose.cmbCompose, options.prefix.cmbPrefix.mask);
    }

private:
    enum class Mask { AlwaysStored, StoredInDrops };

    template<typename Block>
    void Boxes(Block& block)
    {
        for (auto& text : block.text) {
            visitor_.Text(text);
        }
    }

    template<typename Options>
    void LettersAndCase(Options& letters)
    {
        Boxes(letters);
        visitor_.Button(letters.letterCase, actions::AlphaCounterBlock::Uppercase);
    }

    template<typename Options>
    void ValueOfReplaceFirst(Options& value)
    {
        visitor_.Text(value.combo);
        visitor_.Boolean(value.frameAVisible);
        visitor_.Boolean(value.frameCVisible);
        // Reads into the number block's frame once more: after a load it is on show if the mask block was,
        // and the mask block's frame keeps what it had.
        visitor_.Visibility(value.frameRVisible, value.frameCVisible);
        Boxes(value.counter);
        visitor_.Text(value.mask);
        LettersAndCase(value.letters);
    }

    template<typename Options>
    void Value(Options& value, Mask mask)
    {
        ComboAndFrames(value);
        Boxes(value.counter);
        if (mask == Mask::AlwaysStored) {
            visitor_.Text(value.mask);
        } else {
            // In a .rfg the line is empty, and loading it empties the mask box.
            visitor_.MaskText(InDropsOnly(value.mask), value.mask);
        }
        LettersAndCase(value.letters);
    }

    template<typename Options>
    void ComboAndFrames(Options& value)
    {
        visitor_.Text(value.combo);
        visitor_.Boolean(value.frameAVisible);
        visitor_.Boolean(value.frameCVisible);
        visitor_.Boolean(value.frameRVisible);
    }

    template<typename Options>
    void Insert(Options& insert)
    {
        visitor_.Text(insert.cmbInsert);
        visitor_.Text(insert.Text38);
        visitor_.Text(insert.Text43);
        visitor_.Check(insert.Check2);
        visitor_.Text(insert.Text44);
        visitor_.Text(insert.Text45);
        visitor_.Check(insert.Check1);
        Value(insert.cmbInsertS, Mask::StoredInDrops);
    }

    template<typename Options>
    void Length(Options& length)
    {
        using actions::LengthOptions;
        visitor_.Text(length.cmbLength);
        visitor_.Button(length.take, LengthOptions::Option1);
        visitor_.Button(length.take, LengthOptions::Option2);
        visitor_.Button(length.take, LengthOptions::Option3);
        visitor_.Text(length.Text37);
        visitor_.Button(length.pad, LengthOptions::Option19);
        visitor_.Text(length.Text37); // a second time, in the place of Text18, which is never stored
        visitor_.Button(length.pad, LengthOptions::Option20);
        visitor_.Text(length.Text19);
    }

    template<typename Options>
    void ChangeCase(Options& changeCase)
    {
        using actions::ChangeCaseOptions;
        visitor_.Button(changeCase.change, ChangeCaseOptions::Option37);
        visitor_.Button(changeCase.change, ChangeCaseOptions::Option38);
        visitor_.Button(changeCase.change, ChangeCaseOptions::Option39);
    }

    template<typename Options>
    void Extension(Options& extension)
    {
        using actions::ExtensionOptions;
        visitor_.Button(extension.change, ExtensionOptions::Option42);
        visitor_.Button(extension.change, ExtensionOptions::Option41);
        visitor_.Button(extension.change, ExtensionOptions::Option40);
        visitor_.Button(extension.change, ExtensionOptions::Option43);
        Boxes(extension.txtExtC);
        LettersAndCase(extension.txtExtA);
    }

    template<typename Options>
    void Clean(Options& clean)
    {
        using actions::CleanOptions;
        for (auto* box : {&clean.chkCAlpha, &clean.chkSAlpha, &clean.chkVowel, &clean.chkDigit, &clean.Check3,
                          &clean.Check4, &clean.Check5, &clean.Check6, &clean.Check7, &clean.Check8,
                          &clean.Check9, &clean.Check10, &clean.Check11, &clean.Check12}) {
            visitor_.Check(*box);
        }
        visitor_.Text(clean.Text48);
        visitor_.Button(clean.filler, CleanOptions::Option4);
        visitor_.Button(clean.filler, CleanOptions::Option5);
        visitor_.Text(clean.Text49);
    }

    template<typename Options, typename Text>
    void Compose(Options& value, const Text& prefixMask)
    {
        ComboAndFrames(value);
        Boxes(value.counter);
        // A .rnp stores the mask of Prefix here; the one of Compose isn't stored anywhere.
        visitor_.MaskText(InDropsOnly(prefixMask), value.mask);
        LettersAndCase(value.letters);
    }

    QString InDropsOnly(const QString& mask) const { return form_ == RecipeForm::Drop ? mask : QString(); }

    Visitor& visitor_;
    RecipeForm form_;
};

} // namespace documents
