#pragma once

#include "zsg/materials/ZCMFSchema.h"

#include <QString>
#include <QWidget>

#include <map>
#include <set>
#include <string>
#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace workbench {

class ImageField;

/// The CMF values of a material as fields: those of a schema's visible attributes in its order, and
/// below them what the schema does not know. A value is reported when it was typed and confirmed,
/// or left; looking at one changes nothing. A value of several lines has a field of several lines,
/// and Shift+Return in a line makes it one.
class CMFForm final : public QWidget {
    Q_OBJECT

public:
    using Values = std::map<std::string, std::string>;

    explicit CMFForm(QWidget* parent = nullptr);

    /// What is being typed stays, unless it belongs to another material.
    void show(zsg::ZCMFSchema const& schema, Values const& values, bool sameMaterial);
    /// Reports what is typed and not yet confirmed, or drops it.
    void commit();
    void drop();

    [[nodiscard]] int rowCount() const { return static_cast<int>(rows_.size()); }
    /// The place in the schema of the attribute whose field had the focus last; -1 when there is
    /// none.
    [[nodiscard]] int currentAttribute() const;
    /// By label; false when there is none.
    bool focus(QString const& label);

signals:
    /// An empty value takes the key out.
    void edited(std::string const& key, std::string const& value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row {
        std::string key;
        QString label;
        int attribute = -1; ///< place in the schema
        bool isImage = false;
        bool isLong = false; ///< several lines

        friend bool operator==(Row const&, Row const&) = default;
    };
    /// A line or lines.
    struct Field {
        QLineEdit* line = nullptr;
        QPlainTextEdit* lines = nullptr;
        ImageField* image = nullptr;

        [[nodiscard]] QWidget* widget() const;
        [[nodiscard]] QString text() const;
        void setText(QString const& text) const;
        [[nodiscard]] bool isModified() const;
        void setModified(bool modified) const;
    };

    [[nodiscard]] std::vector<Row> rowsOf(zsg::ZCMFSchema const& schema,
                                          Values const& values) const;
    void build();
    [[nodiscard]] Field makeField(std::size_t row);
    void makeLong(std::size_t row);
    void commit(std::size_t row);

    std::vector<Row> rows_;
    std::set<std::string> longKeys_; ///< that became several lines here
    std::vector<Field> fields_;
    QWidget* page_ = nullptr;
    int current_ = -1; ///< row of the field that had the focus last
};

} // namespace workbench
