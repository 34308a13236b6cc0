#pragma once

#include "zsg/materials/ZCMFSchema.h"

#include <QString>
#include <QWidget>

#include <map>
#include <string>
#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;

namespace workbench {

class ImageField;

/// The CMF values of a material as fields: those of a schema's visible attributes in its order, and
/// below them what the schema does not know. A value is reported when it was typed and confirmed,
/// or left; looking at one changes nothing.
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
    /// The place in the schema of the attribute whose field has the focus; -1 when there is none.
    [[nodiscard]] int currentAttribute() const;
    /// By label; false when there is none.
    bool focus(QString const& label);

signals:
    /// An empty value takes the key out.
    void edited(std::string const& key, std::string const& value);

private:
    struct Row {
        std::string key;
        QString label;
        int attribute = -1; ///< place in the schema
        bool isImage = false;

        friend bool operator==(Row const&, Row const&) = default;
    };
    struct Field {
        QLineEdit* line = nullptr;
        ImageField* image = nullptr;
    };

    [[nodiscard]] static std::vector<Row> rowsOf(zsg::ZCMFSchema const& schema,
                                                 Values const& values);
    void build();
    void commit(std::size_t row);

    std::vector<Row> rows_;
    std::vector<Field> fields_;
    QWidget* page_ = nullptr;
};

} // namespace workbench
