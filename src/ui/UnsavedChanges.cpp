#include "ui/UnsavedChanges.h"

#include "app/QuillorentAppDelegate.h"
#include "settings/Store.h"

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTimer>

using namespace std::chrono_literals;

namespace ui {

UnsavedChanges::UnsavedChanges(QuillorentAppDelegate &controller, QMainWindow &window, QLabel &text)
    : m_controller(controller), m_window(window), m_text(text)
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &UnsavedChanges::look);
    timer->start(500ms);
}

void UnsavedChanges::look()
{
    const bool profiles = !quillorentLibrary::areProfilesSaved(m_controller.listPlist());
    const bool settings = !quillorentLibrary::areSettingsSaved(m_controller.configPlist());
    m_window.setWindowModified(profiles || settings);
    m_text.setText(profiles && settings ? tr("Profiles and settings not saved")
                   : profiles           ? tr("Profiles not saved")
                   : settings           ? tr("Settings not saved")
                                        : QString());
    if (!m_closesWhenSaved || isSaving()) return;
    m_closesWhenSaved = false;
    // What could not be saved was told of; the window stays, for another try.
    if (!m_window.isWindowModified()) m_window.close();
}

bool UnsavedChanges::isSaving() const
{
    return m_controller.indicator01.isAnimating() || m_controller.indicator03.isAnimating();
}

bool UnsavedChanges::mayClose()
{
    look();
    const bool savesByItself = m_controller.configPlist().dictionary(u"resources"_qs).isOn(u"autosave"_qs);
    if (savesByItself || m_mayLose || !m_window.isWindowModified()) return true;
    if (!m_question && !m_closesWhenSaved) ask();
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
    connect(m_question->button(QMessageBox::Save), &QAbstractButton::clicked, this, &UnsavedChanges::save);
    connect(m_question->button(QMessageBox::Discard), &QAbstractButton::clicked, this, [this] {
        m_mayLose = true;
        m_window.close();
    });
    m_question->open();
}

void UnsavedChanges::save()
{
    m_closesWhenSaved = true;
    m_controller.profileButton01Action();
    m_controller.saveSettings1Action();
}

} // namespace ui
