#pragma once

#include "outlets/Outlet.h"

#include <QStringList>

namespace outlets {

/// A part of the window that is shown or hidden as a whole.
class View : public Outlet {
public:
    using Outlet::Outlet;
};

class TextField : public Outlet {
public:
    using Outlet::Outlet;

    [[nodiscard]] virtual QString text() const { return read(m_text); }
    virtual void setText(const QString &text) { write(m_text, text); }

private:
    QString m_text;
};

/// A field for a password. It shares its characters with nobody, and overwrites them when it gets others and
/// when it ends. Who asks for the text gets a copy, to be wiped.
class SecretField : public TextField {
public:
    using TextField::TextField;
    ~SecretField() override;

    [[nodiscard]] QString text() const override;
    void setText(const QString &text) override;
    void setText(QString &&text); ///< the text is overwritten, unless it is shared

    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] bool holdsSameAs(const SecretField &other) const;

private:
    QString m_secret;
};

class CheckBox : public Outlet {
public:
    using Outlet::Outlet;

    [[nodiscard]] bool isOn() const { return read(m_on); }
    void setOn(bool on) { write(m_on, on); }

private:
    bool m_on = false;
};

class Button : public Outlet {
public:
    using Outlet::Outlet;

    /// The title that the program gives it; empty where it keeps the one from the form.
    [[nodiscard]] QString title() const { return read(m_title); }
    void setTitle(const QString &title) { write(m_title, title); }

    /// What the button carries besides: the address that it leads to.
    [[nodiscard]] QString alternateTitle() const { return read(m_alternateTitle); }
    void setAlternateTitle(const QString &title) { write(m_alternateTitle, title); }

private:
    QString m_title;
    QString m_alternateTitle;
};

/// A field's arrows: an integer.
class Stepper : public Outlet {
public:
    using Outlet::Outlet;

    [[nodiscard]] int value() const { return read(m_value); }
    void setValue(int value) { write(m_value, value); }

private:
    int m_value = 0;
};

/// One of several: a chooser, a group of radio buttons, a tab view. Its choices come from the form unless the
/// program fills it.
class Selector : public Outlet {
public:
    using Outlet::Outlet;

    /// -1 where nothing is selected.
    [[nodiscard]] int selectedIndex() const { return read(m_selected); }
    void selectIndex(int index) { write(m_selected, index); }

private:
    int m_selected = -1;
};

/// A chooser that the program fills with titles.
class Chooser : public Outlet {
public:
    using Outlet::Outlet;

    [[nodiscard]] QStringList titles() const { return read(m_titles); }
    void setTitles(
        const QStringList &titles); ///< keeps the selected title where it is still there, else selects none

    /// The empty string where nothing is selected.
    [[nodiscard]] QString selectedTitle() const { return read(m_selected); }
    void selectTitle(const QString &title); ///< a title that it does not have selects none
    void selectIndex(qsizetype index) { selectTitle(titles().value(index)); }

private:
    QStringList m_titles;
    QString m_selected;
};

} // namespace outlets
