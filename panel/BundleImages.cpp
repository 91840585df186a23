// SPDX-License-Identifier: Apache-2.0
// Images read on demand.
#include "panel/BundleImages.h"

#include <QIconEngine>
#include <QPainter>

namespace
{

/// Stands for an image of the bundle until somebody looks at it. The bundle lives as long as its images.
class DeferredImage : public QIconEngine
{
public:
    DeferredImage(std::shared_ptr<pdekit::Bundle> bundle, QString name, QString type)
        : mBundle(std::move(bundle)), mName(std::move(name)), mType(std::move(type))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        return icon().pixmap(size / scale, scale, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }
    bool isNull() override { return icon().isNull(); }
    QIconEngine *clone() const override { return new DeferredImage(*this); }

private:
    const QIcon &icon()
    {
        if (!mIcon) {
            mIcon = mBundle->imageForResource(mName, mType).value_or(QIcon());
        }
        return *mIcon;
    }

    std::shared_ptr<pdekit::Bundle> mBundle;
    QString mName;
    QString mType;
    std::optional<QIcon> mIcon;
};

} // namespace

BundleImages::BundleImages(std::shared_ptr<pdekit::Bundle> bundle, const QString &type)
    : mBundle(std::move(bundle)), mType(type)
{
    if (mBundle != nullptr) {
        const QStringList names = mBundle->namesOfResources(type);
        for (const QString &name : names) {
            const QByteArray bytes = name.toUtf8();
            const bool isAscii = bytes.size() == name.size();
            if (isAscii) {
                mNames.insert(bytes, name);
            }
        }
    }
}

std::optional<QIcon> BundleImages::imageNamed(const char *name) const
{
    const auto found = mNames.constFind(QByteArray::fromRawData(name, static_cast<qsizetype>(qstrlen(name))));
    if (found == mNames.constEnd()) {
        return std::nullopt;
    }
    return QIcon(new DeferredImage(mBundle, *found, mType));
}
