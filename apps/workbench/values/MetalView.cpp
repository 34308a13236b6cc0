#include "workbench/values/MetalView.h"

#include "host/metalSamples.h"
#include "workbench/values/MetalPlot.h"
#include "workbench/values/parameterValue.h"
#include "workbench/values/valueText.h"

#include <QHeaderView>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

namespace workbench {

MetalView::MetalView(QWidget* parent)
    : ValueField(parent),
      plot_(new MetalPlot(this)),
      table_(new QTableWidget(this)),
      messages_(new QPlainTextEdit(this)) {
    table_->setObjectName("metalTable");
    table_->setAccessibleName(tr("Samples"));
    table_->setColumnCount(4);
    table_->setHorizontalHeaderLabels({tr("nm"), "n", "k", "R"});
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    messages_->setObjectName("metalMessages");
    messages_->setAccessibleName(tr("What was said of the file"));
    messages_->setReadOnly(true);
    messages_->setTabChangesFocus(true);
    messages_->setMaximumHeight(5 * fontMetrics().lineSpacing());
    messages_->hide();
    auto* const parts = new QSplitter(this);
    parts->addWidget(plot_);
    parts->addWidget(table_);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    parts->setChildrenCollapsible(false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(parts, 1);
    layout->addWidget(messages_);
    setFocusProxy(table_);
}

void MetalView::showValue(zsg::Variant const& value) {
    auto const triples = zsg::tryGet<zsg::FloatArray>(value);
    if (!triples || (triples->constData() == triples_.constData() && !triples_.isEmpty())) {
        return; // shared: nothing has changed
    }
    triples_ = *triples;
    auto const samples = app::metalSamples(triples_);
    plot_->setSamples(samples);
    table_->setRowCount(static_cast<int>(samples.size()));
    QLocale const locale;
    for (int row = 0; row < table_->rowCount(); ++row) {
        app::MetalSample const& s = samples[static_cast<std::size_t>(row)];
        double const numbers[] = {s.wavelength, s.n, s.k, s.reflectance()};
        for (int column = 0; column < table_->columnCount(); ++column) {
            auto* const item = new QTableWidgetItem(locale.toString(numbers[column], 'g', 5));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table_->setItem(row, column, item);
        }
    }
}

std::unique_ptr<zsg::Variant> MetalView::wanted() const { return makeValue(triples_); }

void MetalView::showMessages(QString const& lines) {
    messages_->setPlainText(lines);
    messages_->setVisible(!lines.isEmpty());
}

QString metalCsv(zsg::FloatArray const& triples) {
    QString text;
    for (app::MetalSample const& s : app::metalSamples(triples)) {
        // The shortest digits that are read as the same numbers.
        zsg::FloatArray const numbers{float(s.wavelength), float(s.n), float(s.k)};
        text += valueText(*makeValue(numbers)).replace(' ', ", ") + '\n';
    }
    return text;
}

} // namespace workbench
