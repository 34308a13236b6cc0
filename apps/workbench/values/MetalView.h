#pragma once

#include "workbench/values/ValueField.h"
#include "zsg/values/FloatArray.h"

class QPlainTextEdit;
class QTableWidget;

namespace workbench {

class MetalPlot;

/// A measured metal: its plot, its samples as a table, and what was said of its file. Measurements
/// are looked at and not edited.
class MetalView final : public ValueField {
    Q_OBJECT

public:
    explicit MetalView(QWidget* parent = nullptr);

    void showValue(zsg::Variant const& value) override;
    [[nodiscard]] std::unique_ptr<zsg::Variant> wanted() const override;

    /// Lines about the file that was read last.
    void showMessages(QString const& lines);

private:
    zsg::FloatArray triples_;
    MetalPlot* plot_;
    QTableWidget* table_;
    QPlainTextEdit* messages_;
};

/// The samples as lines "wavelength, n, k" in the notation of files, by wavelength.
[[nodiscard]] QString metalCsv(zsg::FloatArray const& triples);

} // namespace workbench
