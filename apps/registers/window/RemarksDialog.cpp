// SPDX-License-Identifier: MIT
#include "window/RemarksDialog.h"

#include "window/WindowText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace registers {

namespace {

constexpr QSize kSize(760, 360);
constexpr int kPathRole = Qt::UserRole;

QString itemText(const SvdMessage& remark)
{
    return QStringLiteral("%1:%2: ").arg(remark.line).arg(remark.column) + remark.message;
}

} // namespace

RemarksDialog::RemarksDialog(const QVector<SvdMessage>& remarks, qint64 count, QWidget* parent)
    : QDialog(parent)
    , m_list(new QListWidget)
{
    setWindowTitle(tr("Remarks on the Description"));
    resize(kSize);
    auto* heading = new QLabel;
    heading->setObjectName(QStringLiteral("heading"));
    heading->setText(count > remarks.size()
                         ? tr("The first %1 of %2 remarks, with line and column:").arg(remarks.size()).arg(count)
                         : tr("%1, with line and column:").arg(remarksText(count)));
    m_list->setObjectName(QStringLiteral("remarks"));
    m_list->setUniformItemSizes(true);
    for (const SvdMessage& remark : remarks) {
        auto* item = new QListWidgetItem(itemText(remark), m_list);
        item->setData(kPathRole, remark.path);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false); // Return is the list's
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        const QString path = item->data(kPathRole).toString();
        if (!path.isEmpty()) {
            Q_EMIT registerChosen(path);
        }
    });
}

} // namespace registers
