#pragma once

#include <QMainWindow>
#include <QMap>
#include <QString>

class QDockWidget;

namespace workbench {

class Document;
class FileActions;
class Panel;

/// The window over one document: a dock for every panel, the menus, the status bar. The document is
/// borrowed and outlives it.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    enum class PaletteKind { System, Dark, Light };

    explicit MainWindow(Document& document);
    ~MainWindow() override;

    [[nodiscard]] Document& document() { return document_; }
    [[nodiscard]] FileActions& files() { return *files_; }
    /// The panel of a dock by the dock's name ("history"); null when there is none.
    [[nodiscard]] Panel* panel(QString const& name) const;
    [[nodiscard]] QStringList panelNames() const { return panels_.keys(); }
    /// Shows a panel in front of those that share its place; false when there is none.
    bool showPanel(QString const& name);
    /// A picture of the window, or of one panel; null for an unknown panel.
    [[nodiscard]] QPixmap picture(QString const& panelName = {});

    /// Of the whole program.
    static void setPaletteKind(PaletteKind kind);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addPanel(QString const& name, QString const& title, Qt::DockWidgetArea area, Panel* panel);
    void makePanels();
    void arrange();
    void makeEditMenu();
    void makeViewMenu();
    void resetLayout();
    void walkPanels(int step);
    void showState();

    Document& document_;
    FileActions* files_;
    QMap<QString, Panel*> panels_;
    QMap<QString, QDockWidget*> docks_;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QByteArray firstLayout_;
};

} // namespace workbench
