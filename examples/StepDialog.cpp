// c++ -std=c++17 -fPIC StepDialog.cpp -o StepDialog $(pkg-config --cflags --libs Tessera)
// SPDX-License-Identifier: MIT
// A step dialog: pages that follow one another, with a bar that says which one it is and goes to any of them.
#include <Tessera/widgets/CStepBar.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QDialog dialog;
    auto* steps = new nsUI::CStepBar(&dialog);
    auto* pages = new QStackedWidget(&dialog);
    for (const char* name : {"Connect", "Configure", "Write"}) {
        steps->addStep(QLatin1String(name));
        pages->addWidget(new QLabel(QLatin1String(name)));
    }
    steps->setStepEnabled(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    QPushButton* next = buttons->addButton(QStringLiteral("&Next"), QDialogButtonBox::ActionRole);

    const auto show = [steps, pages](int step) {
        steps->slotSetCurrentStep(step);
        pages->setCurrentIndex(step);
    };
    QObject::connect(steps, &nsUI::CStepBar::sigStepClicked, &dialog, show);
    QObject::connect(next, &QPushButton::clicked, &dialog, [=] { show((steps->currentIndex() + 1) % steps->count()); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    show(0);

    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(steps);
    layout->addWidget(pages, 1);
    layout->addWidget(buttons);
    if (app.arguments().contains(QStringLiteral("--once"))) {
        next->click();
        QTimer::singleShot(0, &dialog, [&] { dialog.done(pages->currentIndex() == 1 ? 0 : 1); });
    }
    return dialog.exec();
}
