// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdReader.h"

#include <QDialog>
#include <QVector>

class QListWidget;

namespace registers {

/// Lists what was found wrong with a description.
class RemarksDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p count says how many remarks there are; @p remarks may be fewer.
    RemarksDialog(const QVector<SvdMessage>& remarks, qint64 count, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The register at @p path is to be shown.
    void registerChosen(const QString& path);

private:
    QListWidget* m_list;
};

} // namespace registers
