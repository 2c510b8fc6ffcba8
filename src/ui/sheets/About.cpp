#include "ui/sheets/About.h"

#include "ui/look/Appearance.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QStyle>
#include <openssl/crypto.h>

using namespace Qt::StringLiterals;

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(About)
};

QString libraries()
{
    const QStringList all{
        u"Qt %1 – LGPL 3"_s.arg(QString::fromLatin1(qVersion())),
        u"%1 – Apache 2"_s.arg(
            QString::fromLatin1(OpenSSL_version(OPENSSL_VERSION_STRING)).prepend(u"OpenSSL ")),
        u"libsecret – LGPL 2.1"_s,
        u"zxcvbn – MIT"_s,
        u"Zstandard – BSD"_s,
        u"libarchive – BSD"_s,
        u"libdeflate – MIT"_s,
        u"zlib – Zlib"_s,
        u"libb2 – CC0"_s,
    };
    return u"<li>"_s + all.join(u"</li><li>") + u"</li>"_s;
}

} // namespace

void showAbout(QWidget &window)
{
    auto *box = new QMessageBox(&window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(Words::tr("About Quillorent"));
    box->setIconPixmap(
        themeIcon(applicationId).pixmap(box->style()->pixelMetric(QStyle::PM_LargeIconSize) * 2));
    box->setTextFormat(Qt::RichText);
    box->setText(
        u"<h3>%1</h3>"_s.arg(Words::tr("Quillorent %1").arg(QString::fromLatin1(QUILLORENT_VERSION))));
    box->setInformativeText(u"<p>%1</p><p>%2</p><p>%3</p><ul>%4</ul>"_s.arg(
        Words::tr("Makes encrypted archives of your folders, and brings them back."),
        Words::tr(
            "© 2026 The Quillorent developers. Free software under the MIT licence: you may use, change and "
            "share it; it comes without any warranty."),
        Words::tr("It stands on these libraries and their licences:"), libraries()));
    box->addButton(QMessageBox::Close);
    box->open();
}

} // namespace ui
