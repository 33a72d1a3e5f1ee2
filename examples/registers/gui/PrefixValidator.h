// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>
#include <QString>
#include <QValidator>

namespace registers {

/// Validates as a spin box does and keeps the cursor behind what was typed when the box puts its prefix back, as it
/// does after everything was selected and typed over.
class PrefixValidator : public QValidator
{
    Q_OBJECT

public:
    /// @p box must live as long as this object.
    PrefixValidator(const QAbstractSpinBox& box, QString prefix, QObject* parent = nullptr);

    void setPrefix(const QString& prefix) { m_prefix = prefix; }

    State validate(QString& input, int& position) const override;

private:
    const QAbstractSpinBox& m_box;
    QString m_prefix;
};

} // namespace registers
