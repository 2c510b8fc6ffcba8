#pragma once

#include "backup/Hindrances.h"
#include "ui/facts/BackupReadiness.h"
#include "ui/facts/SourceFacts.h"
#include "ui/pages/RemovalUndo.h"

class QuillorentAppDelegate;

namespace Ui {
class MainWindow;
}

namespace ui {

class FirstSteps;

/// What the page of the backup shows beyond its outlets, and what its own controls do.
class FoldersPage : public QObject {
    Q_OBJECT

public:
    /// Lives as long as the form's page.
    FoldersPage(QuillorentAppDelegate &controller, Ui::MainWindow &form, RefreshQueue &queue);

    // Actions
    void removeSelected();
    void openDestination() const; ///< of the last backup
    void tryRestore();            ///< offers what it made to be restored

    /// Leads to where a hindrance is put right: page and field.
    void goTo(Hindrance::Place place);

private:
    void watch(RefreshQueue &queue);
    void showInPage(QWidget &widget); ///< scrolls
    void offerVolumeSizes();
    void offerFirstSteps();
    void takeFirstStep(int step);
    void goOnFromPassword();
    void endFirstSteps();
    void refreshFirstSteps();

    void showRoom();
    void showProtection();
    void showArchives();
    void showHindrances();
    void showResult();
    void showOutcomeText();

    QuillorentAppDelegate &m_all;
    Ui::MainWindow &m_form;
    SourceFacts m_facts;
    BackupReadiness m_readiness;
    RemovalUndo *m_undo;
    FirstSteps *m_firstSteps = nullptr; ///< while they are shown
    bool m_isFirstStartKnown = false;   ///< whether they are to be shown was decided
    QString m_outcome;                  ///< the text of `outputText01` that was shown last
    QString m_outcomeProfile;           ///< that it is of
};

} // namespace ui
