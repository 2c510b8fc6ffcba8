#pragma once

#include "ui/lists/ContentsModel.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;
class QuillorentAppDelegate;

namespace ui {

class PanelDialog;

/// The sheet that shows what an archive holds, and keeps what is chosen in it for the action that brings it
/// back.
class ContentsSheet : public QObject {
    Q_OBJECT

public:
    struct Widgets {
        QLabel &heading;
        QLineEdit &search;
        QTreeView &tree;
        QLabel &choice; ///< what is chosen, and how long it takes
        QPushButton &restore;
    };

    /// Lives as long as the sheet.
    ContentsSheet(QuillorentAppDelegate &controller, PanelDialog &sheet, const Widgets &widgets);

private:
    void open();
    void showChoice();
    enum class From { Here, Behind }; ///< the line that is current
    void find(From start);
    void openFirstFork();

    QuillorentAppDelegate &m_controller;
    const Widgets m_widgets;
    ContentsModel m_model;
};

} // namespace ui
