// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QDialog;
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/// One of the library's dialogs as the gallery shows it.
struct DialogEntry
{
    const char* name;        ///< one of dialogNames()
    const char* openingText; ///< of the button that opens it; to be translated by text()
    QDialog* (*make)(QWidget* parent);
    void (*start)(QDialog* dialog);      ///< sets going what the dialog reports on; may be null
    QString (*outcome)(QDialog* dialog); ///< what came of it when it was accepted; may be null
};

/// The entry of one of dialogNames().
const DialogEntry& dialogNamed(const QString& name);

} // namespace gallery
