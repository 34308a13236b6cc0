#pragma once

#include <QMainWindow>
#include <QMap>
#include <QString>

#include <string>

class QDockWidget;
class QTabWidget;

namespace workbench {

class Document;
class FileActions;
class Panel;

/// The window over one document: a dock or a central tab for every panel, the menus, the status
/// bar. The document is borrowed and outlives it.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    enum class PaletteKind { System, Dark, Light };

    /// Where a panel is at first. Those of one place share it, the first one in front.
    enum class Place { Center, LeftUpper, LeftLower, RightUpper, RightLower, Bottom };

    explicit MainWindow(Document& document);
    ~MainWindow() override;

    [[nodiscard]] Document& document() { return document_; }
    [[nodiscard]] FileActions& files() { return *files_; }
    /// Takes a panel over. Names are for scripts and the saved layout.
    void addPanel(Place place, QString const& name, QString const& title, Panel* panel);
    /// A panel by its name ("history"); null when there is none.
    [[nodiscard]] Panel* panel(QString const& name) const;
    [[nodiscard]] QStringList panelNames() const { return panels_.keys(); }
    /// Shows a panel in front of those that share its place; false when there is none.
    bool showPanel(QString const& name);
    /// A picture of the window, or of one panel; null for an unknown panel.
    [[nodiscard]] QPixmap picture(QString const& panelName = {});
    /// Writes that as a .png file, whole or not at all. Empty, or what went wrong.
    [[nodiscard]] std::string writePicture(QString const& path, QString const& panelName = {});

    /// Of the whole program.
    static void setPaletteKind(PaletteKind kind);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    void sizeDocks();
    void makeEditMenu();
    void makeViewMenu();
    void resetLayout();
    void walkPanels(int step);
    void showState();

    Document& document_;
    FileActions* files_;
    QMap<QString, Panel*> panels_;
    QMap<QString, QDockWidget*> docks_;
    QMap<Place, QList<QDockWidget*>> places_;
    QTabWidget* tabs_ = nullptr; ///< in the middle
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    QByteArray firstLayout_;
};

} // namespace workbench
