// SPDX-License-Identifier: MIT
// A host application: it uses a widget, the services, a resource and, unless it has none, the default host library.
#include <Tessera/CISpinBox/CU16SpinBox.h>
#include <Tessera/Tessera.h>

#ifndef CONSUMER_WITHOUT_HOST
#include <CCommon.h>
#endif

#include <QApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>

namespace {

int g_nFailures = 0;

void check(bool bOk, const char* what)
{
    if (!bOk) {
        std::fprintf(stderr, "failed: %s\n", what);
        ++g_nFailures;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);

    check(QT_VERSION_MAJOR == CONSUMER_QT && std::atoi(qVersion()) == CONSUMER_QT, "it is the Qt that was asked for");

    nsUI::CU16SpinBox box;
    box.setMaximum(65535);
    box.setDisplayIntegerBase(16);
    box.setValue(0x1234);
    check(box.text() == QLatin1String("1234"), "the spin box shows hexadecimal digits");

    const nsUI::TesseraGlobal& global = nsUI::TesseraGlobal::instance();
    check(global.getColor(nsUI::e_Primary, nsUI::e_L500) == QColor(0x13, 0x67, 0x96), "the palette is there");
    check(QFile::exists(QStringLiteral(":/qss/Tessera.qss")), "the resources are there");

#ifndef CONSUMER_WITHOUT_HOST
    check(CCommon::byteAttryToHex(QByteArray("\xAB\xCD"), QLatin1Char(' ')) == QLatin1String("AB CD"),
          "the host library is there");
    check(!CCommon::instance().getSettings(QString()).isNull(), "the host library has a settings store");
#endif
    return g_nFailures;
}
