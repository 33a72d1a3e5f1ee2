// SPDX-License-Identifier: MIT
#include "gui/UnplacedDialog.h"

#include "device/DeviceImport.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace registers {

namespace {

constexpr QSize kSize(640, 360);

} // namespace

UnplacedDialog::UnplacedDialog(const QString& fileName, const ImportResult& result, QWidget* parent)
    : QDialog(parent)
    , m_hasOthers(!result.values.isEmpty())
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Load Values"));

    auto* question = new QLabel(this);
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    question->setText(
        tr("%n register(s) of %1 cannot be set in this device:", nullptr, result.unplaced.size()).arg(fileName));
    auto* list = new QPlainTextEdit(unplacedText(result.unplaced), this);
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setLineWrapMode(QPlainTextEdit::NoWrap);

    auto* buttons = new QDialogButtonBox(m_hasOthers ? QDialogButtonBox::Cancel : QDialogButtonBox::Close, this);
    if (m_hasOthers) {
        buttons->addButton(tr("&Set the Other %n", nullptr, result.values.size()), QDialogButtonBox::AcceptRole);
        buttons->button(QDialogButtonBox::Cancel)->setDefault(true);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(question);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
    resize(kSize);
}

bool UnplacedDialog::ask()
{
    return exec() == QDialog::Accepted && m_hasOthers;
}

} // namespace registers
