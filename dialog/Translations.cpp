// SPDX-License-Identifier: Apache-2.0
// The catalogues stand in the program itself, so the window speaks its languages wherever the program is put.
#include "dialog/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace tapeprint::dialog
{

namespace
{

void install(QTranslator &translator, const QString &name, const QString &folder)
{
    if (translator.load(QLocale(), name, QStringLiteral("_"), folder)) {
        QCoreApplication::installTranslator(&translator);
    }
}

} // namespace

Translations::Translations()
{
    install(mToolkit, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // The last one installed is asked first.
    install(mDialog, QStringLiteral("tapeprint"), QStringLiteral(":/translations"));
}

} // namespace tapeprint::dialog
