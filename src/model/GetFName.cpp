// SPDX-License-Identifier: MIT
#include "model/GetFName.h"

namespace model {

QString GetFName(const QString& name, const QString& type, bool wantExtension)
{
    const qsizetype dot = type == FileFolder ? -1 : name.lastIndexOf(u'.');
    if (dot < 0) {
        return wantExtension ? QString() : name;
    }
    return wantExtension ? name.mid(dot) : name.left(dot);
}

} // namespace model
