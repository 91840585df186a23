// SPDX-License-Identifier: Apache-2.0
// Loads one interface file: Qt's classes, this library's and a plug-in's own. What it does not know it refuses, where
// the toolkit would put an empty widget in its place.
#pragma once

#include "pdekit/Bundle.h"

#include <QPointer>
#include <QUiLoader>

#include <vector>

namespace pdekit
{

/// While it lives, the toolkit finds no plug-ins to load. The toolkit's loader of interface files loads every plug-in
/// of the interface editor that is installed on the machine as it is made: strangers' code and libraries, for classes
/// that no file here may name.
class WithoutEditorPlugins
{
public:
    WithoutEditorPlugins();
    ~WithoutEditorPlugins() { restore(); }
    WithoutEditorPlugins(const WithoutEditorPlugins &) = delete;
    WithoutEditorPlugins &operator=(const WithoutEditorPlugins &) = delete;

    void restore();

private:
    QStringList mPaths; ///< empty when restored
};

/// A loader for one file. The first base is there while the second is made.
class InterfaceLoader : private WithoutEditorPlugins, public QUiLoader
{
public:
    /// \param factories classes of the plug-in's own; outlives the loader.
    explicit InterfaceLoader(const WidgetFactories &factories);

    /// The view of the file; null when there is none, and reason() says why.
    std::unique_ptr<QWidget> loadView(QIODevice *file);
    QString reason() const { return mReason; }
    /// Calls once for each named widget of the loaded file, in the file's order.
    void connectOutlets(const std::function<void(const QString &name, QWidget *widget)> &connectOutlet) const;

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override;

private:
    QWidget *newWidget(const QString &className, QWidget *parent, const QString &name);

    const WidgetFactories &mFactories;
    QString mReason;
    std::vector<QPointer<QWidget>> mWidgets;
};

} // namespace pdekit
