// SPDX-License-Identifier: Apache-2.0
// The toolkit asks for the object of each widget once somebody listens.
#include "AccessibleControls.h"

#include "pdekit/Numbers.h"
#include "pdekit/RadioMatrix.h"
#include "pdekit/Slider.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace pdekit
{

namespace
{

class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleSlider(Slider *slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Value) {
            return QAccessibleWidget::text(kind);
        }
        const QString value = slider()->stringValue();
        return slider()->unit().isEmpty() ? value : value + QLatin1Char(' ') + slider()->unit();
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return asWritten(slider()->floatValue()); }
    void setCurrentValue(const QVariant &value) override { slider()->takeValue(value.toDouble()); }
    QVariant maximumValue() const override { return asWritten(slider()->maxValue()); }
    QVariant minimumValue() const override { return asWritten(slider()->minValue()); }
    QVariant minimumStepSize() const override { return slider()->altIncrementValue(); }

private:
    /// A float as it is written, not as its last bits say: 3.3 and no 3.299999952316284.
    static double asWritten(double value) { return doubleValue(shortestText(static_cast<float>(value))); }

    Slider *slider() const { return static_cast<Slider *>(object()); }
};

QAccessibleInterface *makeInterface(const QString & /*className*/, QObject *object)
{
    if (auto *slider = qobject_cast<Slider *>(object); slider != nullptr) {
        return new AccessibleSlider(slider);
    }
    auto *matrix = qobject_cast<RadioMatrix *>(object);
    return matrix == nullptr ? nullptr : new QAccessibleWidget(matrix, QAccessible::Grouping);
}

} // namespace

void makeControlsAccessible()
{
    static const bool isDone = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(isDone)
}

} // namespace pdekit
