// SPDX-License-Identifier: MIT
#include "platform/UserStore.h"

#include "platform/Descriptor.h"

#include <QSettings>
#include <QStandardPaths>

#include <cerrno>

namespace platform {

namespace {

QString StorePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QLatin1String("/UserStore.ini");
}

QString KeyOf(const QString& application, const QString& section, const QString& key)
{
    return application + u'/' + section + u'/' + key;
}

} // namespace

QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& defaultValue)
{
    const QSettings store(StorePath(), QSettings::IniFormat);
    return store.value(KeyOf(application, section, key), defaultValue).toString();
}

Status SaveSetting(const QString& application, const QString& section, const QString& key,
                   const QString& value)
{
    QSettings store(StorePath(), QSettings::IniFormat);
    store.setValue(KeyOf(application, section, key), value);
    store.sync();
    return store.status() == QSettings::AccessError ? FailureOf(EACCES) : Status();
}

} // namespace platform
