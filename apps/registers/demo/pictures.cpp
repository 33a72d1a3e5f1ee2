// SPDX-License-Identifier: MIT
// Draws the editor while it is being used: an open editor, an open list, the bit dialog. Command lines cannot.
//
//   registers-pictures FOLDER

#include "CommandRun.h"
#include "look/Icons.h"
#include "session/DeviceEdits.h"
#include "tree/DevicePanel.h"
#include "window/MainWindow.h"

#include <Tessera/Tessera.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPainter>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>

using namespace registers;

namespace {

constexpr int kTitleHeight = 28;
constexpr QSize kDialogSize(760, 460);

/// A dialog as a desktop would show it: with a frame and its title.
void drawDialog(QPainter& painter, const QRect& window, QWidget& dialog)
{
    const QPixmap picture = dialog.grab();
    QRect place(QPoint(), dialog.size() + QSize(0, kTitleHeight));
    place.moveCenter(window.center());
    painter.fillRect(place.adjusted(-1, -1, 1, 1), QColor(0x50, 0x58, 0x60));
    painter.setPen(Qt::white);
    painter.drawText(QRect(place.topLeft(), QSize(place.width(), kTitleHeight)), Qt::AlignCenter, dialog.windowTitle());
    painter.drawPixmap(place.topLeft() + QPoint(0, kTitleHeight), picture);
}

/// The window with what stands in front of it.
QPixmap pictureOf(MainWindow& window)
{
    QCoreApplication::processEvents();
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* other : windows) {
        if (other == &window || !other->isVisible()) {
            continue;
        }
        if (qobject_cast<QDialog*>(other)) {
            drawDialog(painter, window.rect(), *other);
        } else {
            painter.drawPixmap(window.mapFromGlobal(other->mapToGlobal(QPoint())), other->grab());
        }
    }
    return picture;
}

class Scenes
{
public:
    explicit Scenes(const QDir& folder)
        : m_folder(folder)
    {
        CommandLine commandLine;
        commandLine.selectPath = QStringLiteral("ADC.CTRL");
        Session session;
        m_isFine = openSession(commandLine, &session, &m_error);
        m_window.show();
        if (m_isFine) {
            m_window.setSession(std::move(session));
        }
    }

    bool isFine() const { return m_isFine; }
    QString error() const { return m_error; }

    void drawAll()
    {
        drawTree();
        drawEditor(QStringLiteral("editor"), QStringLiteral("ADC.CTRL.AVERAGE"));
        drawEditor(QStringLiteral("choices"), QStringLiteral("ADC.CTRL.RESOLUTION"));
        drawBits();
    }

private:
    void select(const QString& path)
    {
        const PathTarget target = device().find(path);
        m_window.devicePanel()->setCurrentPlace({device().registerAt(target.registerIndex).node, target.fieldIndex});
        QCoreApplication::processEvents();
    }

    void edit(const QString& path, quint64 value) { m_window.edits().set(device().find(path), value); }

    void drawTree()
    {
        edit(QStringLiteral("ADC.CTRL.START"), 1);
        edit(QStringLiteral("ADC.CTRL.AVERAGE"), 5);
        edit(QStringLiteral("ADC.CALIBRATION"), 0x2A0835);
        save(QStringLiteral("tree"));
    }

    void drawEditor(const QString& name, const QString& path)
    {
        select(path);
        m_window.devicePanel()->editValue();
        save(name);
        m_window.devicePanel()->view()->setFocus(); // closes the editor
        QCoreApplication::processEvents();
    }

    void drawBits()
    {
        edit(QStringLiteral("CLOCK.SELECT"), 0x2A0835);
        select(QStringLiteral("CLOCK.SELECT"));
        QTimer::singleShot(0, &m_window, [this] {
            QWidget* dialog = QApplication::activeModalWidget();
            dialog->resize(kDialogSize);
            save(QStringLiteral("bits"));
            dialog->close();
        });
        m_window.devicePanel()->editBits();
    }

    void save(const QString& name)
    {
        const QString file = m_folder.filePath(name + QStringLiteral(".png"));
        if (!pictureOf(m_window).save(file, "PNG")) {
            m_isFine = false;
            m_error = QStringLiteral("%1: cannot be written").arg(file);
        }
    }

    const Device& device() const { return *m_window.session().device; }

    QDir m_folder;
    MainWindow m_window;
    QString m_error;
    bool m_isFine = false;
};

} // namespace

int main(int argc, char* argv[])
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // Qt 6 always does both
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication app(argc, argv);
    QTextStream errors(stderr);
    if (QCoreApplication::arguments().size() != 2) {
        errors << "usage: registers-pictures FOLDER\n";
        return kExitBadUse;
    }
    QFont font = QApplication::font();
    font.setPointSize(nsUI::tagAppFont().pointSize);
    QApplication::setFont(font);
    Scenes scenes{QDir(QCoreApplication::arguments().at(1))};
    if (scenes.isFine()) {
        scenes.drawAll();
    }
    if (!scenes.isFine()) {
        errors << "registers-pictures: " << scenes.error() << '\n';
        return kExitBadUse;
    }
    return kExitOk;
}
