#include "ui/PropertyBag.h"

#include <QObject>
#include <QVariant>

QVariantMap writeProperties(const QObject& control, const StoredProperties& names) {
    QVariantMap bag;
    for (const StoredProperty& name : names)
        bag.insert(QLatin1String(name.stored), control.property(name.property));
    return bag;
}

void readProperties(QObject& control, const StoredProperties& names, const QVariantMap& bag) {
    for (const StoredProperty& name : names) {
        const auto value = bag.constFind(QLatin1String(name.stored));
        if (value != bag.constEnd())
            control.setProperty(name.property, *value);
    }
}
