#include "ui/widgets/SizeEdit.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

struct Unit {
    char16_t letter;
    qint64 thousands;
};
constexpr std::array units{Unit{u'k', 1}, Unit{u'M', 1'000}, Unit{u'G', 1'000'000},
                           Unit{u'T', 1'000'000'000}};

qint64 thousandsOf(QChar letter)
{
    for (const Unit &unit : units)
        if (QChar(unit.letter).toUpper() == letter.toUpper()) return unit.thousands;
    return units[1].thousands;
}

std::optional<double> numberOf(const QString &text)
{
    bool isNumber = false;
    double number = QLocale().toDouble(text, &isNumber);
    if (!isNumber) number = QLocale::c().toDouble(text, &isNumber); // as programs and labels write it
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace

SizeEdit::SizeEdit(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, [this] { Q_EMIT thousandsEdited(thousands()); });
    connect(this, &QLineEdit::editingFinished, this, [this] { showSize(thousands()); });
}

QString SizeEdit::thousands() const
{
    // French bytes are "octets".
    static const QRegularExpression form(u"^\\s*([0-9][0-9.,']*)\\s*([kKmMgGtT])?[bBoO]?\\s*$"_s);
    const QRegularExpressionMatch match = form.match(text());
    const auto number = match.hasMatch() ? numberOf(match.captured(1)) : std::nullopt;
    if (!number) return text();
    const QString unit = match.captured(2);
    const double thousands = *number * double(thousandsOf(unit.isEmpty() ? u'M' : unit[0]));
    constexpr double most = 1e15;
    return thousands > most ? text() : QString::number(qint64(std::round(thousands)));
}

void SizeEdit::setThousands(const QString &thousands)
{
    if (thousands != this->thousands()) showSize(thousands);
}

void SizeEdit::showSize(const QString &thousands)
{
    const QSignalBlocker quiet(this);
    setText(withUnit(thousands));
}

QString SizeEdit::withUnit(const QString &thousands)
{
    bool isNumber = false;
    const qint64 number = thousands.toLongLong(&isNumber);
    if (!isNumber || number < 0) return thousands;
    const auto *unit = &units[0];
    for (const Unit &each : units)
        if (number >= each.thousands && number % std::max<qint64>(each.thousands / 1000, 1) == 0)
            unit = &each;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const int decimals = number % unit->thousands == 0 ? 0 : 3;
    QString digits = locale.toString(double(number) / double(unit->thousands), 'f', decimals);
    while (decimals > 0 && digits.endsWith(locale.zeroDigit()))
        digits.chop(1);
    return tr("%1 %2B").arg(digits, QChar(unit->letter));
}

} // namespace ui
