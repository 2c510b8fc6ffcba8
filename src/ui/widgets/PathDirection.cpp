#include "ui/widgets/PathDirection.h"

#include <QLineEdit>

namespace ui {
namespace {

// Fields that nobody types into show paths; of the others the form tells which hold a place.
bool holdsPlace(const QLineEdit &edit)
{
    return edit.isReadOnly() || edit.objectName() == u"syncTextDestPath" ||
           edit.objectName() == u"syncServer" || edit.objectName() == u"syncUser" ||
           edit.objectName() == u"syncPort";
}

} // namespace

void keepPathsLeftToRight(const QList<QWidget *> &roots)
{
    for (const QWidget *root : roots)
        for (auto *edit : root->findChildren<QLineEdit *>())
            if (holdsPlace(*edit)) edit->setLayoutDirection(Qt::LeftToRight);
}

} // namespace ui
