// SPDX-License-Identifier: MIT
#include "text/EnumText.h"

#include "text/Numbers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace registers {

namespace {

constexpr std::array<NumberBase, 3> kBases{NumberBase::Decimal, NumberBase::Hexadecimal, NumberBase::Binary};
constexpr quint64 kFreeValueSearchEnd = 4096;

/// The bits of an entry, with an x for each that does not count, such as "0b1xx".
QString patternText(const EnumValue& entry, quint64 largest)
{
    QString digits;
    for (quint64 bits = largest, i = 0; bits != 0; bits >>= 1, ++i) {
        const quint64 bit = quint64(1) << i;
        digits.prepend(!(entry.mask & bit) ? QLatin1Char('x')
                       : entry.value & bit ? QLatin1Char('1')
                                           : QLatin1Char('0'));
    }
    return QLatin1String("0b") + digits;
}

/// The two parts of "NAME (0x1)"; the second is empty for any other text.
std::pair<QString, QString> splitText(const QString& text)
{
    const auto bracket = text.lastIndexOf(QLatin1String(" ("));
    if (bracket < 0 || !text.endsWith(QLatin1Char(')'))) {
        return {text, QString()};
    }
    return {text.left(bracket), text.mid(bracket + 2, text.size() - bracket - 3)};
}

QString nameWithNote(const QString& name, const QString& note)
{
    return QStringLiteral("%1 (%2)").arg(name, note);
}

} // namespace

EnumText::EnumText(QSharedPointer<const Enumeration> enumeration, quint64 largest)
    : m_enumeration(std::move(enumeration))
    , m_largest(largest)
{
    for (const EnumValue& entry : m_enumeration->values) {
        addChoice(entry);
    }
}

void EnumText::addChoice(const EnumValue& entry)
{
    const std::optional<quint64> value = entry.hasValue ? entry.value : freeValue();
    if (value && *value <= m_largest) {
        m_choices.append({&entry, *value});
    }
}

std::optional<quint64> EnumText::freeValue() const
{
    for (quint64 value = 0; value <= std::min(m_largest, kFreeValueSearchEnd); ++value) {
        const EnumValue* entry = m_enumeration->find(value);
        if (!entry || !entry->matches(value)) {
            return value;
        }
    }
    return std::nullopt;
}

const EnumText::Choice* EnumText::choiceFor(quint64 value) const
{
    const EnumValue* entry = m_enumeration->find(value);
    const auto found = std::find_if(m_choices.begin(), m_choices.end(),
                                    [entry](const Choice& choice) { return choice.entry == entry; });
    return entry && found != m_choices.end() ? &*found : nullptr;
}

quint64 EnumText::chosen(const Choice& choice, quint64 present) const
{
    return m_enumeration->find(present) == choice.entry ? present : choice.value;
}

QString EnumText::text(quint64 value, NumberBase base) const
{
    return text(*m_enumeration, value, base);
}

QString EnumText::text(const Enumeration& enumeration, quint64 value, NumberBase base)
{
    const EnumValue* entry = enumeration.find(value);
    return entry ? nameWithNote(entry->name, numberText(value, base))
                 : nameWithNote(numberText(value, base), notNamed());
}

QString EnumText::widestText(NumberBase base) const
{
    return nameWithNote(numberText(m_largest, base), notNamed());
}

QString EnumText::text(const Choice& choice, NumberBase base) const
{
    if (!choice.entry->hasValue) {
        return nameWithNote(choice.entry->name, tr("any other"));
    }
    const bool isOpen = (choice.entry->mask & m_largest) != m_largest;
    return nameWithNote(choice.entry->name,
                        isOpen ? patternText(*choice.entry, m_largest) : numberText(choice.value, base));
}

std::optional<quint64> EnumText::value(const QString& typed, quint64 present) const
{
    const QString text = typed.trimmed();
    if (const auto plain = number(text)) {
        return plain;
    }
    const auto [name, note] = splitText(text);
    if (note == notNamed()) {
        return number(name);
    }
    if (const auto noted = number(note)) {
        return isNameOf(name, *noted) ? noted : std::nullopt;
    }
    for (const Choice& choice : m_choices) {
        if (text.compare(this->text(choice, NumberBase::Decimal), Qt::CaseInsensitive) == 0) {
            return chosen(choice, present);
        }
    }
    if (const Choice* choice = choiceNamed(text)) {
        return chosen(*choice, present);
    }
    return std::nullopt;
}

TextState EnumText::state(const QString& typed) const
{
    if (value(typed, 0)) {
        return TextState::Acceptable;
    }
    return isBeginning(typed.trimmed()) ? TextState::Intermediate : TextState::Invalid;
}

bool EnumText::isBeginning(const QString& typed) const
{
    const auto begins = [&typed](const QString& whole) { return whole.startsWith(typed, Qt::CaseInsensitive); };
    if (begins(QStringLiteral("0x")) || begins(QStringLiteral("0b"))) {
        return true;
    }
    for (const NumberBase base : kBases) {
        for (const Choice& choice : m_choices) {
            if (begins(text(choice, base)) || begins(nameWithNote(choice.entry->name, QString()).chopped(1))) {
                return true;
            }
        }
    }
    // The note after a number, and the number after a name, as a text is deleted from its end.
    const auto bracket = typed.lastIndexOf(QLatin1String(" ("));
    if (bracket < 0) {
        return false;
    }
    const QString head = typed.left(bracket);
    const QString note = typed.mid(bracket + 2);
    return (number(head) && notNamed().startsWith(note)) ||
           (choiceNamed(head) &&
            (number(note) || QStringLiteral("0x").startsWith(note) || QStringLiteral("0b").startsWith(note)));
}

const EnumText::Choice* EnumText::choiceNamed(const QString& name) const
{
    for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        for (const Choice& choice : m_choices) {
            if (choice.entry->name.compare(name, sensitivity) == 0) {
                return &choice;
            }
        }
    }
    return nullptr;
}

bool EnumText::isNameOf(const QString& name, quint64 value) const
{
    const EnumValue* found = m_enumeration->find(value);
    return std::any_of(m_enumeration->values.begin(), m_enumeration->values.end(), [&](const EnumValue& entry) {
        return (&entry == found || entry.matches(value)) && entry.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

std::optional<quint64> EnumText::number(const QString& typed) const
{
    const std::optional<quint64> parsed = parsePlainNumber(typed);
    return parsed && *parsed <= m_largest ? parsed : std::nullopt;
}

QString EnumText::notNamed()
{
    return tr("not named");
}

} // namespace registers
