#pragma once

#include <QObject>
#include <memory>

class QDialog;
class QWidget;

namespace ui {

enum class GuidePage {
    Guide,   ///< how to use the program
    Recovery ///< how to get everything back without it
};

/// The guide, which lies in the program itself, in a window of its own. It belongs to nothing that is on the
/// screen: what stands above the main window would be blocked by a sheet, and it is about sheets, too, that
/// people read.
class Guide : public QObject {
    Q_OBJECT

public:
    explicit Guide(QObject *parent);
    ~Guide() override;

    /// Brings it to the front, over the middle of that window.
    void show(GuidePage page, const QWidget &over);

private:
    std::unique_ptr<QDialog> m_dialog; ///< once it was wanted
};

} // namespace ui
