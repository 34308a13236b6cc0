#include "Rows.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ValueVariant.h"
#include "zsg/values/hash_variant.h"

#include <QVariant>

#include <algorithm>
#include <any>
#include <memory>
#include <numeric>
#include <vector>

namespace {

using namespace zsg;
using benchmark::State;

/// What a QVariant needs to compare matrices.
struct PeerMatrix {
    double m[16];
    bool operator==(PeerMatrix const&) const = default;
};

template <class T>
struct PeerType {
    using Type = T;
    static T from(T const& value) { return value; }
};
template <>
struct PeerType<nyxMatrix> {
    using Type = PeerMatrix;
    static PeerMatrix from(nyxMatrix const& value) {
        PeerMatrix peer;
        std::copy_n(value.m, 16, peer.m);
        return peer;
    }
};
template <>
struct PeerType<FloatArray> {
    using Type = QList<float>;
    static QList<float> from(FloatArray const& value) { return value; }
};

template <class T>
QVariant peerOf(T const& value) {
    return QVariant::fromValue(PeerType<T>::from(value));
}

FloatArray floats(float first) {
    FloatArray list(1000);
    std::iota(list.begin(), list.end(), first);
    return list;
}

void make(State& state, Type type) {
    for (auto _ : state) {
        Variant* holder = makeVariant(type);
        benchmark::DoNotOptimize(holder);
        delete holder;
    }
}

template <class T>
void makePeer(State& state) {
    T const initial{};
    for (auto _ : state) {
        auto* holder = new QVariant(peerOf(initial));
        benchmark::DoNotOptimize(holder);
        delete holder;
    }
}

template <class T>
void clone(State& state, T const& value) {
    ValueVariant<T> const source(value);
    for (auto _ : state) {
        Variant* copy = source.cloneValue();
        benchmark::DoNotOptimize(copy);
        delete copy;
    }
}

template <class T>
void clonePeer(State& state, T const& value) {
    std::any const source(value);
    for (auto _ : state) {
        auto* copy = new std::any(source);
        benchmark::DoNotOptimize(copy);
        delete copy;
    }
}

template <class T>
void set(State& state, T const& first, T const& second) {
    std::unique_ptr<Variant> const holder(makeVariant(typeOf<T>));
    holder->set(&first);
    T const values[] = {second, first};
    unsigned turn = 0;
    for (auto _ : state) {
        bool changed = holder->set(&values[turn++ & 1]);
        benchmark::DoNotOptimize(changed);
    }
}

/// Beginning with a value, as `set` does.
template <class T>
void setPeer(State& state, T const& first, T const& second) {
    using Peer = typename PeerType<T>::Type;
    QVariant holder = peerOf(first);
    Peer const values[] = {PeerType<T>::from(second), PeerType<T>::from(first)};
    unsigned turn = 0;
    for (auto _ : state) {
        QVariant const wanted = QVariant::fromValue(values[turn++ & 1]);
        bool changed = holder != wanted;
        if (changed) {
            holder = wanted;
        }
        benchmark::DoNotOptimize(changed);
    }
}

template <class T>
void get(State& state, T const& value) {
    std::unique_ptr<Variant> const holder(makeVariant(typeOf<T>));
    holder->set(&value);
    T out{};
    for (auto _ : state) {
        holder->get(&out);
        benchmark::DoNotOptimize(out);
    }
}

template <class T>
void getPeer(State& state, T const& value) {
    auto const holder = std::make_unique<std::any>(value);
    benchmark::DoNotOptimize(holder.get());
    T out{};
    for (auto _ : state) {
        out = std::any_cast<T const&>(*holder);
        benchmark::DoNotOptimize(out);
    }
}

template <class T>
void hash(State& state, T const& value) {
    ValueVariant<T> const holder(value);
    for (auto _ : state) {
        std::uint64_t result = hash_variant(&holder);
        benchmark::DoNotOptimize(result);
    }
}

/// Reads every value of a brush-sized panel, and writes it back changed.
void panel(State& state) {
    std::vector<Parameter> parameters;
    for (int i = 0; i < 32; ++i) {
        parameters.emplace_back(
            Parameter::Builder("name", "Name").setType(i < 24 ? Type::Float : Type::Boolean));
    }
    for (auto _ : state) {
        for (Parameter& parameter : parameters) {
            bool changed = false;
            if (parameter.hasType(Type::Float)) {
                changed = parameter.setValue(*parameter.value<float>() + 1);
            } else {
                changed = parameter.setValue(!*parameter.value<bool>());
            }
            benchmark::DoNotOptimize(changed);
        }
    }
}

void panelPeer(State& state) {
    std::vector<QVariant> values;
    for (int i = 0; i < 32; ++i) {
        values.push_back(i < 24 ? QVariant(0.0f) : QVariant(false));
    }
    for (auto _ : state) {
        for (QVariant& value : values) {
            QVariant const wanted = value.metaType().id() == QMetaType::Float
                                        ? QVariant(value.toFloat() + 1)
                                        : QVariant(!value.toBool());
            bool changed = value != wanted;
            if (changed) {
                value = wanted;
            }
            benchmark::DoNotOptimize(changed);
        }
    }
}

template <class T>
void registerMaking(std::string const& row, std::string const& workload, double atMost) {
    bench::contestant(row, workload, bench::ours, [](State& s) { make(s, typeOf<T>); });
    bench::contestant(row, workload, "QVariant on heap", makePeer<T>);
    bench::target({row, workload, "QVariant on heap", atMost});
}

template <class T>
void registerCloning(std::string const& workload, T const& value, double atMost) {
    bench::contestant("1d", workload, bench::ours, [value](State& s) { clone(s, value); });
    bench::contestant("1d", workload, "std::any on heap",
                      [value](State& s) { clonePeer(s, value); });
    bench::target({"1d", workload, "std::any on heap", atMost});
}

template <class T>
void registerSetting(std::string const& row, std::string const& workload, T const& first,
                     T const& second, double atMost) {
    bench::contestant(row, workload, bench::ours, [=](State& s) { set(s, first, second); });
    bench::contestant(row, workload, "QVariant", [=](State& s) { setPeer(s, first, second); });
    bench::target({row, workload, "QVariant", atMost});
}

template <class T>
void registerGetting(std::string const& workload, T const& value, double atMost) {
    bench::contestant("1g", workload, bench::ours, [value](State& s) { get(s, value); });
    bench::contestant("1g", workload, "any_cast", [value](State& s) { getPeer(s, value); });
    bench::target({"1g", workload, "any_cast", atMost});
}

void registerAll() {
    QString const text = QStringLiteral("Brushed aluminium, warm");
    QString const ownText(text.constData(), text.size()); // equal, in other storage
    QString const otherText = QStringLiteral("Brushed aluminium, cold");
    nyxMatrix const matrix{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}};
    nyxMatrix otherMatrix = matrix;
    otherMatrix.m[9] = 0;

    registerMaking<int>("1a", "scalar", 0.80);
    registerMaking<QString>("1a", "text", 0.80);
    registerMaking<QList<int>>("1a", "list", 0.80);
    registerMaking<nyxMatrix>("1b", "matrix", 0.60);

    bench::contestant("1c", "integer", bench::ours, [](State& s) { make(s, Type::Integer); });
    for (Type const type : {Type::WeavePattern, Type::ColorGradient, Type::AnimationCurve}) {
        bench::contestant("1c", typeName(type), bench::ours, [type](State& s) { make(s, type); });
        bench::target({"1c", typeName(type), bench::ours, 1.5, "integer"});
    }

    registerCloning("int", 42, 1.05);
    registerCloning("float", 12.5f, 1.05);
    registerCloning("text", text, 0.70);
    registerCloning("list", floats(0), 0.70);
    registerCloning("matrix", matrix, 0.95);

    registerSetting("1e", "int, equal", 42, 42, 0.20);
    registerSetting("1e", "int, different", 42, 43, 0.20);
    registerSetting("1e", "float, equal", 1.0f, 1.0f, 0.20);
    registerSetting("1e", "float, different", 1.0f, 2.0f, 0.20);
    registerSetting("1e", "text, equal", text, ownText, 0.45);
    registerSetting("1e", "text, different", text, otherText, 0.45);
    registerSetting("1e", "matrix, equal", matrix, matrix, 0.30);
    registerSetting("1e", "matrix, different", matrix, otherMatrix, 0.30);
    registerSetting("1f", "1000 floats, equal", floats(0), floats(0), 2.5);

    registerGetting("scalar", 42, 4);
    registerGetting("text", text, 1.3);
    registerGetting("list", floats(0), 1.3);
    registerGetting("matrix", matrix, 1.3);

    bench::contestant("1h", "panel of 32", bench::ours, panel);
    bench::contestant("1h", "panel of 32", "QVariant", panelPeer);

    bench::contestant("2c", "matrix hash", bench::ours, [matrix](State& s) { hash(s, matrix); });
    bench::contestant("2c", "matrix hash", "qHashBits", [matrix](State& s) {
        for (auto _ : s) {
            std::size_t result = qHashBits(&matrix, sizeof matrix, 0);
            benchmark::DoNotOptimize(result);
        }
    });
    bench::target({"2c", "matrix hash", "qHashBits", 1.5});

    for (int const size : {24, 1000}) {
        std::string const workload = "text hash, " + std::to_string(size) + " characters";
        QString const value(size, QChar('x'));
        bench::contestant("2e", workload, bench::ours, [value](State& s) { hash(s, value); });
        bench::contestant("2e", workload, "qHash", [value](State& s) {
            for (auto _ : s) {
                std::size_t result = qHash(QStringView(value), 0);
                benchmark::DoNotOptimize(result);
            }
        });
    }
    // On a short text, fetching the value costs as much as the hash itself.
    bench::target({"2e", "text hash, 1000 characters", "qHash", 1.1});
    bench::target({"2e", "text hash, 24 characters", "qHash", 1.1});
}

bool const registered = [] {
    registerAll();
    return true;
}();

} // namespace
