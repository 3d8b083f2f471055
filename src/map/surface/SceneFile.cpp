#include "map/surface/SceneFile.h"

#include "core/RuntimeError.h"

#include <QByteArray>
#include <QDataStream>
#include <QFile>
#include <QSaveFile>
#include <QString>

#include <algorithm>

namespace {

constexpr quint32 Magic = 0x43534D31; // "CSM1": the number behind the letters is that of the layout
constexpr quint32 MostItems = 100000; ///< of layers or symbols; more is damage

[[noreturn]] void refuse(const std::string& path) {
    throw RuntimeError(321, "The map file '" + path + "' is damaged or not a map file");
}

/// Moves one property after the other between a scene and a stream, so that reading and writing cannot differ.
class SceneStream {
public:
    SceneStream(QDataStream& stream, bool writing) : stream_(stream), writing_(writing) {}

    void move(Scene& scene) { moveList(scene.layers); }

private:
    void move(Layer& layer) {
        move(layer.LayerName);
        move(layer.LayerSourceType);
        move(layer.LayerDataSource);
        move(layer.LayerCoverageName);
        moveEnum(layer.LayerInterpretation);
        move(layer.LayerJoins);
        move(layer.LayerFields);
        move(layer.LayerSymbolExpression);
        moveEnum(layer.LayerLinkType);
        move(layer.LayerLabelSource);
        move(layer.LayerVisible);
        move(layer.LayerShownInKey);
        move(layer.LayerCheckForOverlap);
        move(layer.LayerFromZoomTrigger);
        move(layer.LayerToZoomTrigger);
        moveList(layer.symbols);
    }

    void move(Symbol& symbol) {
        move(symbol.SymbolName);
        move(symbol.SymbolNumericRangeFrom);
        move(symbol.SymbolNumericRangeTo);
        move(symbol.SymbolStringEquals);
        move(symbol.SymbolPolygonColor);
        move(symbol.SymbolFilled);
        move(symbol.SymbolPolygonBorderColor);
        move(symbol.SymbolPointSymbol);
        move(symbol.SymbolPointColor);
        move(symbol.SymbolEnableLabels);
        move(symbol.SymbolLabelFont.family);
        move(symbol.SymbolLabelFont.size);
        move(symbol.SymbolLabelColor);
        moveEnum(symbol.SymbolLabelJustification);
        moveEnum(symbol.SymbolLabelBaseline);
    }

    /// A list is never empty.
    template<typename Item>
    void moveList(std::vector<Item>& items) {
        auto count = static_cast<quint32>(items.size());
        move(count);
        if (!writing_) {
            if (count == 0 || count > MostItems || stream_.status() != QDataStream::Ok) {
                stream_.setStatus(QDataStream::ReadCorruptData);
                return;
            }
            items.clear();
        }
        for (quint32 i = 0; i < count && stream_.status() == QDataStream::Ok; ++i) {
            if (!writing_)
                items.emplace_back();
            move(items[i]);
        }
    }

    template<typename Number>
    void move(Number& number) {
        if (writing_)
            stream_ << number;
        else
            stream_ >> number;
    }

    void move(std::string& text) {
        QByteArray bytes = QByteArray::fromStdString(text);
        move(bytes);
        text = bytes.toStdString();
    }

    /// A number comes back as its text, which selects the same symbols.
    void move(Value& value) {
        bool isNull = value.isNull();
        std::string text = value.asText();
        move(isNull);
        move(text);
        if (!writing_)
            value = isNull ? Value() : Value(text);
    }

    template<typename Enum>
    void moveEnum(Enum& value) {
        auto number = static_cast<qint32>(value);
        move(number);
        value = static_cast<Enum>(number);
    }

    QDataStream& stream_;
    bool writing_;
};

} // namespace

void saveScene(const Scene& scene, const std::string& path) {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << Magic;
    Scene copy = scene;
    SceneStream(stream, true).move(copy);

    QSaveFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly) || file.write(qCompress(bytes)) < 0 || !file.commit())
        throw RuntimeError(75, "The map file '" + path + "' cannot be written: " + file.errorString().toStdString());
}

Scene loadScene(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.exists())
        throw RuntimeError(53, "File not found: '" + path + "'");
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(75, "The map file '" + path + "' cannot be read: " + file.errorString().toStdString());
    const QByteArray bytes = qUncompress(file.readAll());
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 magic = 0;
    stream >> magic;
    Scene scene;
    if (magic == Magic)
        SceneStream(stream, false).move(scene);
    if (magic != Magic || stream.status() != QDataStream::Ok || !stream.atEnd())
        refuse(path);
    return scene;
}
