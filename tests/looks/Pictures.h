// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace looks {
struct Setting;
}

/// Pictures of windows, and how they are compared with those that are kept: by structure and colour. Edges of glyphs,
/// which another FreeType draws otherwise, do not count.
namespace looks {

/// A picture of @p window in half its size, whatever the scale.
QImage reducedPicture(QWidget* window);

/// The same picture with a palette, as it is kept.
QImage inFewColors(const QImage& picture);

/// How two pictures differ: the blocks of kBlock pixels that do, and why they cannot be taken for the same.
struct Difference
{
    QVector<QRect> blocks;
    QString reason; ///< empty when the pictures are taken for the same
};

Difference differenceOf(const QImage& kept, const QImage& present);

/// Both pictures side by side, the blocks that differ framed in both.
QImage differencePicture(const QImage& kept, const QImage& present, const Difference& difference);

/// Compares @p present with the picture of that name in @p keptFolder. Answers what is wrong, naming the path of a
/// picture of the difference in @p differenceFolder; nothing when all is well.
QString compareWithKept(const QImage& present, const QString& name, const QString& keptFolder,
                        const QString& differenceFolder);

/// Compares a picture of @p window with the kept one, or, when LOOKS_WRITE_PICTURES is set in the environment, keeps it.
/// Does nothing in a setting without pictures, and with Qt 6, which lays windows out otherwise. Answers what is wrong.
QString checkPicture(QWidget* window, const QString& scene, const Setting& setting);

} // namespace looks
