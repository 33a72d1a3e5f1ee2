// SPDX-License-Identifier: MIT
#pragma once

#include "text/Enumeration.h"
#include "text/NumberText.h"

#include <QCoreApplication>
#include <QSharedPointer>
#include <QVector>

#include <optional>

namespace registers {

/// What can become of a text that is being typed: nothing, something, or it is complete.
enum class TextState { Invalid, Intermediate, Acceptable };

/// The values of an enumerated field as text and back.
///
/// A value reads "NAME (0x1)", or "0x5 (not named)". What is typed may be such a text, a name alone, or a number in
/// decimal, 0x or 0b; a number that is also a name counts as the number.
class EnumText
{
    Q_DECLARE_TR_FUNCTIONS(registers::EnumText)

public:
    /// Something to choose. Entries that leave bits open, or stand for all other values, have one value here.
    struct Choice
    {
        const EnumValue* entry = nullptr;
        quint64 value = 0;
    };

    /// @p largest is the largest value of the field.
    EnumText(QSharedPointer<const Enumeration> enumeration, quint64 largest);

    const QVector<Choice>& choices() const { return m_choices; }
    /// The choice whose entry names @p value, or null.
    const Choice* choiceFor(quint64 value) const;
    /// What choosing @p choice makes of @p present: nothing when its entry names @p present already.
    quint64 chosen(const Choice& choice, quint64 present) const;

    QString text(quint64 value, NumberBase base) const;
    static QString text(const Enumeration& enumeration, quint64 value, NumberBase base);
    /// What the largest value reads like without a name.
    QString widestText(NumberBase base) const;
    /// How @p choice reads in a list.
    QString text(const Choice& choice, NumberBase base) const;

    /// The value that @p typed means, with @p present the value before. Nothing when it means none.
    std::optional<quint64> value(const QString& typed, quint64 present) const;
    /// Intermediate for a text that can be completed to one that has a value.
    TextState state(const QString& typed) const;

private:
    void addChoice(const EnumValue& entry);
    std::optional<quint64> freeValue() const;
    const Choice* choiceNamed(const QString& name) const;
    bool isNameOf(const QString& name, quint64 value) const;
    std::optional<quint64> number(const QString& typed) const;
    bool isBeginning(const QString& typed) const;
    static QString notNamed();

    QSharedPointer<const Enumeration> m_enumeration;
    QVector<Choice> m_choices;
    quint64 m_largest;
};

} // namespace registers
