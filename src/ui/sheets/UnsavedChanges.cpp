#include "ui/sheets/UnsavedChanges.h"

#include "app/QuillorentAppDelegate.h"
#include "settings/Store.h"

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace ui {

UnsavedChanges::UnsavedChanges(QuillorentAppDelegate &controller, QMainWindow &window, QLabel &text)
    : m_controller(controller), m_window(window), m_text(text)
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] {
        look();
        // Taken once: what comes between, such as a run that begins, keeps the window open.
        if (m_controller.takeMayQuit()) closeAnyhow();
    });
    timer->start(500ms);
}

void UnsavedChanges::look()
{
    const bool profiles = !quillorentLibrary::areProfilesSaved(m_controller.listPlist());
    const bool settings = !quillorentLibrary::areSettingsSaved(m_controller.configPlist());
    m_window.setWindowModified(profiles || settings);
    m_text.setText(!profiles && !settings ? tr("All changes saved")
                   : savesByItself()      ? tr("Changes are saved when you quit")
                   : profiles && settings ? tr("Profiles and settings not saved yet")
                   : profiles             ? tr("Profiles not saved yet")
                                          : tr("Settings not saved yet"));
}

bool UnsavedChanges::savesByItself() const
{
    return m_controller.configPlist().dictionary(u"resources"_s).isOn(u"autosave"_s);
}

void UnsavedChanges::closeAnyhow()
{
    m_mayLose = true;
    m_window.close();
    m_mayLose = false;
}

bool UnsavedChanges::mayClose()
{
    if (m_mayLose) return true;
    look();
    if (!m_window.isWindowModified()) return true;
    const bool isAsked = m_question && m_question->isVisible();
    if (isAsked || m_controller.savesForQuitting()) return false;
    savesByItself() ? m_controller.saveForQuitting() : ask();
    return false;
}

void UnsavedChanges::ask()
{
    m_question = new QMessageBox(QMessageBox::Question, tr("Save changes?"),
                                 tr("There are changes that are not saved."),
                                 QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    m_question->setInformativeText(tr("Without saving they are lost when the program ends."));
    m_question->setDefaultButton(QMessageBox::Save);
    m_question->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_question->button(QMessageBox::Save), &QAbstractButton::clicked, this,
            [this] { m_controller.saveForQuitting(); });
    connect(m_question->button(QMessageBox::Discard), &QAbstractButton::clicked, this,
            &UnsavedChanges::closeAnyhow);
    m_question->open();
}

} // namespace ui
