// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdReader.h"

#include <QPointer>
#include <QToolButton>
#include <QVector>

namespace registers {

class RemarksDialog;

/// Says in the status bar how many remarks there are on the description, and lists them when it is clicked. Without
/// any it is hidden.
class RemarksButton : public QToolButton
{
    Q_OBJECT

public:
    explicit RemarksButton(QWidget* parent = nullptr);

    /// Those of another description. A list that is open is closed.
    void setRemarks(const QVector<SvdMessage>& remarks, qint64 count);

    /// As high as a line of text, so that the status bar is as high with remarks as without.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The register at @p path, which a remark concerns, is to be shown.
    void registerChosen(const QString& path);

private:
    void showList();

    QVector<SvdMessage> m_remarks;
    qint64 m_count = 0;
    QPointer<RemarksDialog> m_list;
};

} // namespace registers
