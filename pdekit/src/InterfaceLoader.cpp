// SPDX-License-Identifier: Apache-2.0
// Making the widgets of an interface file. Only widgets that the file names become outlets, not the inner parts of
// composite ones.
#include "InterfaceLoader.h"

#include "pdekit/RadioMatrix.h"
#include "pdekit/Slider.h"

#include <QCoreApplication>
#include <QSet>

namespace pdekit
{

namespace
{

QSet<QString> listClasses(const QUiLoader &loader)
{
    const QStringList listed = loader.availableWidgets();
    QSet<QString> classes(listed.begin(), listed.end());
    // A separator of the interface editor: the toolkit makes it but does not list it.
    classes.insert(QStringLiteral("Line"));
    return classes;
}

/// The classes that the toolkit makes, the same for every file.
const QSet<QString> &toolkitClasses(const QUiLoader &loader)
{
    static const QSet<QString> classes = listClasses(loader);
    return classes;
}

} // namespace

WithoutEditorPlugins::WithoutEditorPlugins() : mPaths(QCoreApplication::libraryPaths())
{
    QCoreApplication::setLibraryPaths({});
}

void WithoutEditorPlugins::restore()
{
    if (!mPaths.isEmpty()) {
        QCoreApplication::setLibraryPaths(mPaths);
        mPaths.clear();
    }
}

InterfaceLoader::InterfaceLoader(const WidgetFactories &factories) : mFactories(factories)
{
    WithoutEditorPlugins::restore(); // styles and image formats are plug-ins as well
    // Texts of the view come from the bundle's catalogue, never from the application's.
    setTranslationEnabled(false);
}

std::unique_ptr<QWidget> InterfaceLoader::loadView(QIODevice *file)
{
    std::unique_ptr<QWidget> view(load(file));
    if (!view && mReason.isNull()) {
        mReason = errorString();
    }
    return mReason.isNull() ? std::move(view) : nullptr;
}

void InterfaceLoader::connectOutlets(
    const std::function<void(const QString &name, QWidget *widget)> &connectOutlet) const
{
    for (const QPointer<QWidget> &widget : mWidgets) {
        if (widget && !widget->objectName().isEmpty()) {
            connectOutlet(widget->objectName(), widget);
        }
    }
}

QWidget *InterfaceLoader::createWidget(const QString &className, QWidget *parent, const QString &name)
{
    QWidget *widget = newWidget(className, parent, name);
    if (widget == nullptr) {
        mReason = QStringLiteral("it names the class \"%1\", which nobody offers").arg(className);
        return nullptr;
    }
    widget->setObjectName(name);
    mWidgets.emplace_back(widget);
    return widget;
}

QWidget *InterfaceLoader::newWidget(const QString &className, QWidget *parent, const QString &name)
{
    const auto factory = mFactories.find(className);
    if (factory != mFactories.end()) {
        return factory->second ? factory->second(parent) : nullptr;
    }
    if (className == QLatin1String("pdekit::RadioMatrix")) {
        return new RadioMatrix(parent);
    }
    if (className == QLatin1String("pdekit::Slider")) {
        return new Slider(parent);
    }
    return toolkitClasses(*this).contains(className) ? QUiLoader::createWidget(className, parent, name) : nullptr;
}

} // namespace pdekit
