// SPDX-License-Identifier: Apache-2.0
// A bundle: a directory with code and a Resources folder that holds its interface files, translations and images.
#pragma once

#include "pdekit/Export.h"

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <optional>

class QTranslator;

namespace pdekit
{

/// Makes a widget of a class that an interface file names. \param parent becomes the widget's owner.
using WidgetFactory = std::function<QWidget *(QWidget *parent)>;
/// Classes that an interface file may name beside Qt's and this library's (RadioMatrix, Slider).
using WidgetFactories = std::map<QString, WidgetFactory>;

/// A bundle on disk. Held by shared pointers: a panel that keeps its bundle takes bundle->shared_from_this().
class PDEKIT_EXPORT Bundle : public std::enable_shared_from_this<Bundle>
{
public:
    /// The bundle at a directory, which need not exist: such a bundle has no resources. \param path the directory.
    static std::shared_ptr<Bundle> bundleWithPath(const QString &path);
    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    /// The bundle's directory, absolute.
    QString bundlePath() const;

    /// The path of a file in Resources. \param name without its ending; \param type the ending, without a point.
    /// \return a null string when there is no such file. A name that leads out of Resources is never found.
    QString pathForResource(const QString &name, const QString &type) const;

    /// The names, without their ending, of the files of one type in Resources, as the disk has them now. For those who
    /// look for many names of which few exist. \param type the ending, without a point.
    QStringList namesOfResources(const QString &type) const;

    /// An image of the bundle, read once and kept. \return std::nullopt when the file is missing or is no image.
    std::optional<QIcon> imageForResource(const QString &name, const QString &type) const;

    /// A text in the person's language, from the bundle's own catalogue (Resources/LANGUAGE.qm, id-based). The
    /// catalogue is the bundle's alone: it is not installed in the application and no other bundle sees it.
    /// \param key the text's key; \param value what to answer for a key without an entry; null: the key itself.
    /// \param table the catalogue's table; null: the default table, the only one that this library has.
    QString localizedStringForKey(const QString &key, const QString &value = QString(),
                                  const QString &table = QString()) const;

    /// Takes the texts from the catalogue of another language from now on, such as "de" or "zh_CN". Without this call
    /// the languages of the person's session decide. \return false, and nothing changed, when the bundle lacks that
    /// language.
    bool setLanguage(const QString &language);

    /// Loads an interface file (Resources/NAME.ui) and hands each widget to the owner's outlets.
    /// \param name without its ending; \param factories classes of the plug-in's own that the file names;
    /// \param connectOutlet called once for each named widget of the file, the view itself included.
    /// \return the top-level view, owned by the caller; null when the file is missing or is no interface file (the
    /// reason goes to the log).
    std::unique_ptr<QWidget>
    loadInterface(const QString &name, const WidgetFactories &factories,
                  const std::function<void(const QString &name, QWidget *widget)> &connectOutlet) const;

private:
    explicit Bundle(const QString &path);
    void loadCatalogueOfSession();

    QString mPath;
    std::unique_ptr<QTranslator> mCatalogue;
    mutable QHash<QString, QIcon> mImages; ///< read so far, by name and type
};

} // namespace pdekit
