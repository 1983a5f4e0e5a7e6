#pragma once

#include <QDialog>

class PluginLoader;
class PluginModel;
class QLabel;
class QPushButton;
class QTableView;

/// The page of the plug-ins: what each one is and brings, how long it took to load, what is wrong with it, and a switch
/// for each.
class PluginsDialog : public QDialog {
    Q_OBJECT

public:
    /// The loader lives longer.
    explicit PluginsDialog(PluginLoader& loader, QWidget* parent = nullptr);

private:
    void showDetails();
    void loadNow();

    PluginLoader& m_loader;
    PluginModel* m_model;
    QTableView* m_view;
    QLabel* m_details;
    QPushButton* m_loadNow;
};
