// SPDX-License-Identifier: MIT
#pragma once

#include <QValidator>

namespace registers {

class EnumText;

/// Lets only be typed what can become a value of an enumerated field.
class EnumValidator : public QValidator
{
    Q_OBJECT

public:
    /// @p names must live as long as this object.
    explicit EnumValidator(const EnumText& names, QObject* parent = nullptr);

    State validate(QString& input, int& position) const override;

private:
    const EnumText& m_names;
};

} // namespace registers
