#pragma once

#include "paint/BrushImage.h"
#include "store/BrushKinds.h"

#include "nyxrender/Span.h"
#include "nyxrender/nyxBrush_node.h"

#include <memory>
#include <string_view>
#include <vector>

namespace nyx::embedded {

/// A brush node, in two states. What params() shows may be written by whoever holds a record; the
/// renderer paints with what publish() took over last.
class BrushNode final : public nyx::painter::nyxBrush_node {
public:
    using Param = nyx::painter::nyxBrush_param;

    explicit BrushNode(BrushKind const& kind);

    [[nodiscard]] char const* kind() const override { return kind_.name; }
    [[nodiscard]] Span<Param*> params() const override { return pointers_; }

    /// The record of a name and type; null when the kind has none.
    [[nodiscard]] Param* find(std::string_view name, int type);
    [[nodiscard]] bool owns(Param const& param) const;

    /// What the node's file parameter shows, null when it was never loaded or could not be read.
    void setImage(std::shared_ptr<BrushImage const> image) { image_ = std::move(image); }
    [[nodiscard]] std::shared_ptr<BrushImage const> const& image() const { return image_; }

    /// From now on the renderer uses the present values.
    void publish();
    /// A published value; null when the kind has no such parameter.
    [[nodiscard]] Param::Value const* published(std::string_view name, int type) const;
    [[nodiscard]] std::shared_ptr<BrushImage const> const& publishedImage() const {
        return publishedImage_;
    }

private:
    BrushKind const& kind_;
    std::vector<Param> params_; ///< never resized: records are lent out by address
    std::vector<Param*> pointers_;
    std::vector<Param::Value> published_;
    std::shared_ptr<BrushImage const> image_;
    std::shared_ptr<BrushImage const> publishedImage_;
};

} // namespace nyx::embedded
