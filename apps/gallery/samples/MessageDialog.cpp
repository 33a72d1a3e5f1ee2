// SPDX-License-Identifier: MIT
#include "host/Host.h"
#include "samples/DialogSamples.h"
#include "samples/LogColors.h"
#include "samples/Samples.h"

#include <Tessera/widgets/CMessageDlg.h>
#include <Tessera/widgets/CustomTextBrowser.h>

#include <QCoreApplication>

namespace gallery {

namespace {

constexpr int kBrowserHeight = 110;
constexpr QSize kDialogSize(320, 190);

} // namespace

QDialog* makeMessageDialog(QWidget* parent)
{
    //! [message]
    auto* dialog = new nsUI::CMessageDlg(parent);
    dialog->setWindowTitle(Words::tr("Download"));
    dialog->appendColorText(Words::tr("12 registers written."),
                            successColor());
    dialog->appendColorText(Words::tr("1 register skipped."), warningColor());
    dialog->appendColorText(Words::tr("No answer from 0x40."), dangerColor());
    //! [message]
    dialog->resize(kDialogSize);
    return dialog;
}

QWidget* makeTextBrowser()
{
    //! [browser]
    auto* browser = new nsUI::CustomTextBrowser;
    browser->setMenuActFlag(nsUI::CustomTextBrowser::MenuActClear, true);
    //! [browser]
    const auto fill = [browser] {
        browser->clear();
        //! [browser]
        browser->appendColorText(QStringLiteral("0000  12 34 56 78"),
                                 QColor()); // the usual colour
        browser->appendColorText(QStringLiteral("0004  DE AD <b>BE</b> EF"),
                                 successColor());
        browser->appendColorText(QStringLiteral("0008  ?? ?? ?? ??"),
                                 dangerColor());
        //! [browser]
    };
    fill();
    QObject::connect(&Host::instance(), &Host::lookChanged, browser,
                     fill); // other colours read well on another ground
    browser->setFixedHeight(kBrowserHeight);
    return browser;
}

} // namespace gallery
