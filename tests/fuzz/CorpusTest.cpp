// SPDX-License-Identifier: MIT
//
// Gives every file of fuzz/corpus/ to its target. Inputs that once broke a reader lie there, too, so that
// none does so again.
#include "fuzz/Targets.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <ostream>

namespace fuzz {

void PrintTo(const Target& target, std::ostream* out)
{
    *out << target.name;
}

} // namespace fuzz

namespace {

const QString Corpus = QStringLiteral(QUILLMARK_FUZZ_CORPUS);

std::string NameOf(const testing::TestParamInfo<fuzz::Target>& target)
{
    return QString::fromLatin1(target.param.name).replace(u'-', u'_').toStdString();
}

class FuzzCorpus : public testing::TestWithParam<fuzz::Target>
{};

TEST_P(FuzzCorpus, BreaksNothing)
{
    const QDir folder(Corpus + QLatin1String(GetParam().name));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    EXPECT_FALSE(names.isEmpty()) << "nothing was run";
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        QFile input(folder.filePath(name));
        ASSERT_TRUE(input.open(QIODevice::ReadOnly));
        EXPECT_NO_THROW(GetParam().read(input.readAll()));
    }
}

INSTANTIATE_TEST_SUITE_P(OfTarget, FuzzCorpus,
                         testing::ValuesIn(fuzz::AllTargets().begin(), fuzz::AllTargets().end()), NameOf);

TEST(FuzzCorpora, BelongToTargets)
{
    QStringList targets;
    for (const fuzz::Target& target : fuzz::AllTargets()) {
        targets << QLatin1String(target.name);
    }
    EXPECT_EQ(QDir(Corpus).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name).join(u' ').toStdString(),
              targets.join(u' ').toStdString());
}

} // namespace
