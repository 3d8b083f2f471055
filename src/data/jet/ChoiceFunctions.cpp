#include "data/jet/FunctionLibrary.h"

namespace jet::functions {

namespace {
bool isTrue(const Value& condition) {
    return !condition.isNull() && condition.asBoolean();
}
} // namespace

Value iif(Arguments a) {
    if (isTrue(a[0]))
        return a[1];
    return a.size() > 2 ? a[2] : Value();
}

Value nz(Arguments a) {
    if (!a[0].isNull())
        return a[0];
    return a.size() > 1 ? a[1] : Value("");
}

Value switchOf(Arguments a) {
    for (std::size_t i = 0; i + 1 < a.size(); i += 2) {
        if (isTrue(a[i]))
            return a[i + 1];
    }
    return {};
}

Value choose(Arguments a) {
    if (a[0].isNull())
        return {};
    const double index = a[0].asDouble();
    return index >= 1.0 && index < static_cast<double>(a.size()) ? a[static_cast<std::size_t>(index)] : Value();
}

Value isNull(Arguments a) {
    return a[0].isNull();
}

} // namespace jet::functions
