#include "ui/About.h"

#include "ui/Appearance.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QStyle>
#include <openssl/crypto.h>

namespace ui {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(About)
};

QString libraries()
{
    const QStringList all{
        u"Qt %1 – LGPL 3"_qs.arg(QString::fromLatin1(qVersion())),
        u"%1 – Apache 2"_qs.arg(
            QString::fromLatin1(OpenSSL_version(OPENSSL_VERSION_STRING)).prepend(u"OpenSSL ")),
        u"libsecret – LGPL 2.1"_qs,
        u"zxcvbn – MIT"_qs,
        u"Zstandard – BSD"_qs,
        u"libarchive – BSD"_qs,
        u"libdeflate – MIT"_qs,
        u"zlib – Zlib"_qs,
        u"libb2 – CC0"_qs,
    };
    return u"<li>"_qs + all.join(u"</li><li>") + u"</li>"_qs;
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
        u"<h3>%1</h3>"_qs.arg(Words::tr("Quillorent %1").arg(QString::fromLatin1(QUILLORENT_VERSION))));
    box->setInformativeText(u"<p>%1</p><p>%2</p><p>%3</p><ul>%4</ul>"_qs.arg(
        Words::tr("Makes encrypted archives of your folders, and brings them back."),
        Words::tr(
            "© 2026 The Quillorent developers. Free software under the MIT licence: you may use, change and "
            "share it; it comes without any warranty."),
        Words::tr("It stands on these libraries and their licences:"), libraries()));
    box->addButton(QMessageBox::Close);
    box->open();
}

} // namespace ui
