// SPDX-License-Identifier: Apache-2.0
// The catalogues stand in the program itself, so the window speaks its languages wherever the program is put.
#include "dialog/Translations.h"

#include "dialog/OwnDirectionStyle.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace tapeprint::dialog
{

namespace
{

/// \return whether there is a catalogue for the person's languages.
bool install(QTranslator &translator, const QString &name, const QString &folder)
{
    return translator.load(QLocale(), name, QStringLiteral("_"), folder) &&
           QCoreApplication::installTranslator(&translator);
}

} // namespace

Translations::Translations()
{
    install(mToolkit, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // The last one installed is asked first.
    const QString name = QStringLiteral("tapeprint");
    const QString folder = QStringLiteral(":/translations");
    if (!install(mDialog, name, folder) && mDialog.load(name + QStringLiteral("_en"), folder)) {
        QCoreApplication::installTranslator(&mDialog); // the texts in the code lack the plural forms of English
    }
    OwnDirectionStyle::takeWhereMirrored(); // the toolkit's own texts may read from the right; ours do in no language
}

} // namespace tapeprint::dialog
