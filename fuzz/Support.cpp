// SPDX-License-Identifier: MIT
#include "fuzz/Support.h"

#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

namespace fuzz {

void Require(bool holds, const char* sentence)
{
    if (!holds) {
        throw std::logic_error(sentence);
    }
}

void Require(const platform::Status& status)
{
    Require(status.IsOk(), status.Description().toUtf8().constData());
}

const QString& Folder()
{
    static const QTemporaryDir folder;
    static const QString path = folder.path() + u'/';
    Require(folder.isValid(), "a temporary folder can be made");
    return path;
}

QString WriteFile(const char* name, QByteArrayView content)
{
    const QString path = Folder() + QLatin1String(name);
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                file.write(content.data(), content.size()) == content.size(),
            "a file can be written");
    return path;
}

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    Require(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered), "a file can be read");
    return file.readAll();
}

} // namespace fuzz
