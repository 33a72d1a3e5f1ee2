// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/widgets/CStepBar.h>

namespace registers {

/// The way of the work: a description is opened, its values are edited, what has changed is reviewed, and saved.
class WorkSteps : public nsUI::CStepBar
{
    Q_OBJECT

public:
    enum Step { Open, Edit, Review, Save };

    explicit WorkSteps(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void updateRules();
};

} // namespace registers
