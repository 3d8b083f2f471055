#pragma once

#include <QVariantMap>

#include <vector>

/// A property of a control and the name under which form data keeps it. The two differ where a property was renamed
/// after forms had been saved.
struct StoredProperty {
    const char* stored;
    const char* property;
};

using StoredProperties = std::vector<StoredProperty>;

/// The values of a control by their stored names.
QVariantMap writeProperties(const QObject& control, const StoredProperties& names);

/// Sets what `bag` holds; a value that is not stored, or of a type that does not fit, leaves the property as it is (a
/// new control has its defaults). Names that the control does not know are passed over.
void readProperties(QObject& control, const StoredProperties& names, const QVariantMap& bag);
