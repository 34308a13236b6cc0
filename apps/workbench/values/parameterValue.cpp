#include "workbench/values/parameterValue.h"

#include "zsg/values/equals.h"

#include <algorithm>

namespace workbench {

using zsg::Type;

namespace {

template <class T>
void assignAs(zsg::Parameter& parameter, zsg::Variant const& value) {
    T const wanted = *zsg::tryGet<T>(value);
    parameter.setValue(wanted);
    if constexpr (std::is_same_v<T, zsg::Enumerable>) {
        auto const now = parameter.value<T>();
        if (now && now->getSelection() != wanted.getSelection()) {
            // A holder of its own takes a value over only when the options differ.
            parameter.setValue(T());
            parameter.setValue(wanted);
        }
    }
}

template <class T>
bool isSameAs(zsg::Variant const& a, zsg::Variant const& b) {
    T const x = *zsg::tryGet<T>(a);
    T const y = *zsg::tryGet<T>(b);
    if constexpr (std::is_same_v<T, zsg::Enumerable>) {
        return zsg::equals(x, y) && x.getSelection() == y.getSelection();
    } else {
        return zsg::equals(x, y);
    }
}

} // namespace

std::unique_ptr<zsg::Variant> valueOf(zsg::Parameter const& parameter) {
    if (!parameter.isValid() || parameter.isPure()) {
        return nullptr;
    }
    switch (parameter.type()) {
#define WORKBENCH_COPY(member, number, T)                                                          \
    case Type::member: {                                                                           \
        auto const value = parameter.value<T>();                                                   \
        return value ? makeValue<T>(*value) : nullptr;                                             \
    }
        ZSG_VALUE_TYPES(WORKBENCH_COPY)
#undef WORKBENCH_COPY
    default:
        return nullptr;
    }
}

void assign(zsg::Parameter parameter, zsg::Variant const& value) {
    if (!parameter.isValid() || parameter.type() != value.type()) {
        return;
    }
    switch (value.type()) {
#define WORKBENCH_SET(member, number, T)                                                           \
    case Type::member:                                                                             \
        return assignAs<T>(parameter, value);
        ZSG_VALUE_TYPES(WORKBENCH_SET)
#undef WORKBENCH_SET
    default:
        break;
    }
}

bool isSame(zsg::Variant const& a, zsg::Variant const& b) {
    if (a.type() != b.type()) {
        return false;
    }
    switch (a.type()) {
#define WORKBENCH_SAME(member, number, T)                                                          \
    case Type::member:                                                                             \
        return isSameAs<T>(a, b);
        ZSG_VALUE_TYPES(WORKBENCH_SAME)
#undef WORKBENCH_SAME
    default:
        return true;
    }
}

ParameterItems itemsOf(QList<zsg::Parameter> const& parameters) {
    ParameterItems items;
    for (zsg::Parameter const& parameter : parameters) {
        items.push_back({parameter, valueOf(parameter)});
    }
    return items;
}

std::vector<ParameterItems> commonParameters(std::vector<ParameterItems> const& subjects) {
    std::vector<ParameterItems> rows;
    if (subjects.empty()) {
        return rows;
    }
    for (ParameterItem const& first : subjects.front()) {
        ParameterItems row{first};
        for (std::size_t i = 1; i < subjects.size() && !first.parameter.isNull(); ++i) {
            auto const found =
                std::ranges::find_if(subjects[i], [&first](ParameterItem const& other) {
                    return !other.parameter.isNull() &&
                           other.parameter.name() == first.parameter.name() &&
                           other.parameter.type() == first.parameter.type();
                });
            if (found != subjects[i].end()) {
                row.push_back(*found);
            }
        }
        if (row.size() == subjects.size()) {
            rows.push_back(std::move(row));
        }
    }
    return rows;
}

} // namespace workbench
