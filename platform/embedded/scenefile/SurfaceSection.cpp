#include "scenefile/SurfaceSection.h"

#include "store/Surfaces.h"
#include "store/jsonText.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>
#include <set>
#include <utility>
#include <vector>

namespace nyx::embedded {
namespace {

constexpr std::uint32_t lastId = 0xFFFFFFFEu;
constexpr auto tileBytes = static_cast<qsizetype>(sizeof(PixelTile::planes));

bool isTransparent(PixelTile const& tile) {
    auto const& alpha = tile.planes[PixelTile::alpha];
    return std::all_of(std::begin(alpha), std::end(alpha), [](auto a) { return a == 0; });
}

void appendTiles(std::string& out, LayerPixels const& pixels) {
    char const* separator = "";
    for (int row = 0; row < pixels.tilesAcross(); ++row) {
        for (int column = 0; column < pixels.tilesAcross(); ++column) {
            PixelTile const* const tile = pixels.tile(column, row).get();
            if (!tile || isTransparent(*tile)) {
                continue;
            }
            QByteArray const text =
                qCompress(
                    QByteArray::fromRawData(reinterpret_cast<char const*>(tile->planes), tileBytes))
                    .toBase64();
            out.append(separator).append("[").append(std::to_string(column)).append(", ");
            out.append(std::to_string(row)).append(", \"").append(text.constData()).append("\"]");
            separator = ", ";
        }
    }
}

void appendFlag(std::string& out, char const* name, bool isSet) {
    if (isSet) {
        out.append(", \"").append(name).append("\": true");
    }
}

void appendName(std::string& out, std::string const& name) {
    if (!name.empty()) {
        appendText(out.append(", \"name\": "), name);
    }
}

void appendLayer(std::string& out, Surface::Layer const& layer) {
    LayerInfo const& info = layer.info;
    out.append("{\"id\": ").append(std::to_string(info.id));
    appendName(out, info.name);
    out.append(", \"blend\": ").append(std::to_string(static_cast<std::uint32_t>(info.mode)));
    appendFlag(out, "deleted", info.deleted);
    appendFlag(out, "hidden", !info.visible);
    char const* separator = ", \"background\": [";
    for (float const part :
         {info.background.r, info.background.g, info.background.b, info.background.a}) {
        appendFloat(out.append(separator), part);
        separator = ", ";
    }
    appendTiles(out.append("], \"tiles\": ["), layer.pixels);
    out += "]}";
}

bool readFlag(JsonNode const& node, std::string_view name) {
    auto const flag = node.find(name);
    return flag && flag->boolean();
}

/// Whether anything is painted right of `columns` or below `rows`.
bool isPaintedBeyond(PixelTile const& tile, int columns, int rows) {
    for (int i = 0; i < PixelTile::texels; ++i) {
        bool const isBeyond = i % PixelTile::edge >= columns || i / PixelTile::edge >= rows;
        if (isBeyond && tile.planes[PixelTile::alpha][i] != 0) {
            return true;
        }
    }
    return false;
}

/// A tile of which so many columns and rows belong to the layer.
TileHandle readTile(JsonNode const& node, int columns, int rows) {
    std::string const& text = node.string();
    auto const bytes = QByteArray::fromBase64Encoding(
        QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())),
        QByteArray::AbortOnBase64DecodingErrors);
    // The size stands first; one that is wrong must not make us allocate it.
    char const size[] = {0, 0, static_cast<char>(tileBytes >> 8), static_cast<char>(tileBytes)};
    QByteArray const planes = bytes && bytes.decoded.startsWith(QByteArray::fromRawData(size, 4))
                                  ? qUncompress(bytes.decoded)
                                  : QByteArray();
    if (planes.size() != tileBytes) {
        node.failExpected("the compressed texels of a tile");
    }
    PixelTile tile;
    std::memcpy(tile.planes, planes.constData(), sizeof tile.planes);
    for (int plane = 0; plane < PixelTile::alpha; ++plane) {
        if (!std::equal(std::begin(tile.planes[plane]), std::end(tile.planes[plane]),
                        std::begin(tile.planes[PixelTile::alpha]),
                        [](auto color, auto alpha) { return color <= alpha; })) {
            node.fail("a colour is above its alpha");
        }
    }
    if (isPaintedBeyond(tile, columns, rows)) {
        node.fail("a texel is painted beyond the edge of the layer");
    }
    return TileHandle(tile);
}

LayerPixels readPixels(JsonNode const& layer, int resolution) {
    LayerPixels pixels(resolution);
    if (auto const tiles = layer.find("tiles")) {
        tiles->forEachElement([&pixels](JsonNode const& node) {
            if (node.arraySize() != 3) {
                node.failExpected("column, row and texels");
            }
            auto const last = static_cast<std::uint32_t>(pixels.tilesAcross()) - 1;
            int const column = static_cast<int>(node.element(0).word(0, last));
            int const row = static_cast<int>(node.element(1).word(0, last));
            int const across = pixels.resolution();
            pixels.setTile(column, row,
                           readTile(node.element(2), across - column * PixelTile::edge,
                                    across - row * PixelTile::edge));
        });
    }
    return pixels;
}

nyxColor_rgba readBackground(JsonNode const& layer) {
    auto const node = layer.find("background");
    if (!node) {
        return {};
    }
    if (node->arraySize() != 4) {
        node->failExpected("4 numbers (red, green, blue, alpha)");
    }
    return {node->element(0).component(), node->element(1).component(),
            node->element(2).component(), node->element(3).component()};
}

Surface::Layer readLayer(JsonNode const& node, int resolution) {
    node.checkObject({"id", "name", "blend", "deleted", "hidden", "background", "tiles"});
    LayerInfo info;
    info.id = node.member("id").word(0, 0xFFFFFFFE); // the highest one says "none"
    if (auto const name = node.find("name")) {
        info.name = name->text();
    }
    if (auto const blend = node.find("blend")) {
        info.mode = static_cast<nyx::ColorBlendMode>(blend->word());
    }
    info.deleted = readFlag(node, "deleted");
    info.visible = !readFlag(node, "hidden");
    info.background = readBackground(node);
    return {std::move(info), readPixels(node, resolution)};
}

} // namespace

void appendSurface(std::string& out, Surface const& surface) {
    SurfaceInfo const info = surface.info();
    out.append("{\"id\": ").append(std::to_string(info.id.toUint()));
    appendName(out, info.name);
    out.append(", \"resolution\": ").append(std::to_string(info.resolution));
    appendFlag(out, "deleted", info.deleted);
    out.append(", \"editLayer\": ")
        .append(std::to_string(info.editLayer))
        .append(", \"layers\": [");
    char const* separator = "\n      ";
    for (Surface::Layer const& layer : surface.layersWithPixels()) {
        appendLayer(out.append(separator), layer);
        separator = ",\n      ";
    }
    out += "]}";
}

void readSurface(JsonNode const& node, Surfaces& surfaces) {
    node.checkObject({"id", "name", "resolution", "deleted", "editLayer", "layers"});
    SurfaceInfo info;
    JsonNode const id = node.member("id");
    info.id = nyx::SurfaceId(id.word(1, lastId));
    if (info.id < surfaces.nextId()) {
        id.fail("ids ascend: expected " + std::to_string(surfaces.nextId().toUint()) +
                " or more, found " + std::to_string(info.id.toUint()));
    }
    if (auto const name = node.find("name")) {
        info.name = name->text();
    }
    info.resolution = static_cast<int>(node.member("resolution").word(1, Surface::mostTexels));
    info.deleted = readFlag(node, "deleted");
    if (auto const edit = node.find("editLayer")) {
        info.editLayer = edit->word();
    }
    std::vector<Surface::Layer> layers;
    std::set<std::uint32_t> ids;
    node.member("layers").forEachElement([&](JsonNode const& layer) {
        layers.push_back(readLayer(layer, info.resolution));
        if (!ids.insert(layers.back().info.id).second) {
            layer.fail("two layers have this id");
        }
    });
    surfaces.add(info, std::move(layers));
}

} // namespace nyx::embedded
