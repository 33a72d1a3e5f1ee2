// SPDX-License-Identifier: MIT
#include "Pictures.h"

#include "Setting.h"

#include <QColor>
#include <QDir>
#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace looks {

namespace {

constexpr int kBlock = 8;
constexpr double kMeanTolerance = 6;     // of 255
constexpr double kMeanShare = 0.4;       // of the spread: strokes move within a block
constexpr double kSpreadTolerance = 8;   // of 255
constexpr double kSpreadShare = 0.55;    // of the larger spread
constexpr double kDifferingShare = 0.02; // of all blocks
constexpr int kLargestPatch = 3;         // blocks that touch
constexpr int kSizeTolerance = 4;        // texts differ in width

constexpr int kMostColors = 128;
constexpr int kNearlySame = 3 * 4 * 4; // squares of distances
constexpr int kClearlyOther = 3 * 16 * 16;

/// Red, green and blue of a block, each on the average and in its standard deviation.
struct Block
{
    std::array<double, 3> mean{};
    std::array<double, 3> spread{};
};

Block blockOf(const QImage& picture, const QRect& rect)
{
    std::array<double, 3> sum{};
    std::array<double, 3> squares{};
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const std::array<int, 3> parts{qRed(pixel), qGreen(pixel), qBlue(pixel)};
            for (std::size_t i = 0; i < parts.size(); ++i) {
                sum[i] += parts[i];
                squares[i] += parts[i] * parts[i];
            }
        }
    }
    const double count = rect.width() * rect.height();
    Block block;
    for (std::size_t i = 0; i < sum.size(); ++i) {
        block.mean[i] = sum[i] / count;
        block.spread[i] = std::sqrt(std::max(0.0, squares[i] / count - block.mean[i] * block.mean[i]));
    }
    return block;
}

bool differ(const Block& one, const Block& other)
{
    for (std::size_t i = 0; i < one.mean.size(); ++i) {
        const double spread = std::max(one.spread[i], other.spread[i]);
        if (std::abs(one.mean[i] - other.mean[i]) > kMeanTolerance + kMeanShare * spread ||
            std::abs(one.spread[i] - other.spread[i]) > kSpreadTolerance + kSpreadShare * spread) {
            return true;
        }
    }
    return false;
}

bool touch(const QRect& one, const QRect& other)
{
    return one.adjusted(-1, -1, 1, 1).intersects(other);
}

/// The number of blocks in the largest patch of blocks that touch.
int largestPatch(QVector<QRect> blocks)
{
    int largest = 0;
    while (!blocks.isEmpty()) {
        QVector<QRect> patch{blocks.takeLast()};
        for (int i = 0; i < patch.size(); ++i) {
            const QRect one = patch.at(i);
            const auto rest =
                std::partition(blocks.begin(), blocks.end(), [&one](const QRect& other) { return !touch(one, other); });
            std::copy(rest, blocks.end(), std::back_inserter(patch));
            blocks.erase(rest, blocks.end());
        }
        largest = std::max(largest, static_cast<int>(patch.size()));
    }
    return largest;
}

int distance(QRgb one, QRgb other)
{
    const int red = qRed(one) - qRed(other);
    const int green = qGreen(one) - qGreen(other);
    const int blue = qBlue(one) - qBlue(other);
    return red * red + green * green + blue * blue;
}

uchar placeOfNearest(const QVector<QRgb>& table, QRgb color)
{
    const auto nearest = std::min_element(table.cbegin(), table.cend(), [color](QRgb one, QRgb other) {
        return distance(one, color) < distance(other, color);
    });
    return static_cast<uchar>(nearest - table.cbegin());
}

/// Takes more of @p colors, until there are @p count, if they are so far from those that there are.
void addColors(QVector<QRgb>* table, const QList<QRgb>& colors, int count, int leastDistance)
{
    for (const QRgb color : colors) {
        const auto isNear = [=](QRgb other) { return distance(color, other) < leastDistance; };
        if (table->size() < count && std::none_of(table->cbegin(), table->cend(), isNear)) {
            table->append(color);
        }
    }
}

/// The most frequent ones, for grounds, and then those that differ from them, for texts.
QVector<QRgb> frequentColors(const QHash<QRgb, int>& counts)
{
    QList<QRgb> colors = counts.keys();
    std::sort(colors.begin(), colors.end(), [&counts](QRgb one, QRgb other) {
        const int less = counts.value(other);
        return counts.value(one) > less || (counts.value(one) == less && one < other);
    });
    QVector<QRgb> table;
    addColors(&table, colors, kMostColors / 2, kNearlySame);
    addColors(&table, colors, kMostColors, kClearlyOther);
    return table;
}

} // namespace

QImage reducedPicture(QWidget* window)
{
    const QImage whole = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QSize half = (window->size() + QSize(1, 1)) / 2;
    return whole.scaled(half, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
}

QImage inFewColors(const QImage& picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    const QVector<QRgb> table = frequentColors(counts);
    QHash<QRgb, uchar> places;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        places.insert(it.key(), placeOfNearest(table, it.key()));
    }
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(table);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            indexed.scanLine(y)[x] = places.value(picture.pixel(x, y));
        }
    }
    return indexed;
}

Difference differenceOf(const QImage& kept, const QImage& present)
{
    Difference difference;
    const QSize larger = kept.size().expandedTo(present.size());
    const QSize common = kept.size().boundedTo(present.size());
    if (larger.width() - common.width() > kSizeTolerance || larger.height() - common.height() > kSizeTolerance) {
        difference.reason = QStringLiteral("the size is %1x%2 and was %3x%4")
                                .arg(present.width())
                                .arg(present.height())
                                .arg(kept.width())
                                .arg(kept.height());
    }
    int count = 0;
    for (int y = 0; y < common.height(); y += kBlock) {
        for (int x = 0; x < common.width(); x += kBlock, ++count) {
            const QRect block = QRect(x, y, kBlock, kBlock) & QRect(QPoint(), common);
            if (differ(blockOf(kept, block), blockOf(present, block))) {
                difference.blocks.append(block);
            }
        }
    }
    const int patch = largestPatch(difference.blocks);
    const int differing = static_cast<int>(difference.blocks.size());
    if (difference.reason.isEmpty() && (patch > kLargestPatch || differing > count * kDifferingShare)) {
        difference.reason =
            QStringLiteral("%1 of %2 blocks differ, %3 of them in one patch").arg(differing).arg(count).arg(patch);
    }
    return difference;
}

QImage differencePicture(const QImage& kept, const QImage& present, const Difference& difference)
{
    constexpr int kGap = 8;
    QImage picture(kept.width() + kGap + present.width(), std::max(kept.height(), present.height()),
                   QImage::Format_RGB32);
    picture.fill(Qt::gray);
    QPainter painter(&picture);
    painter.drawImage(0, 0, kept);
    painter.drawImage(kept.width() + kGap, 0, present);
    painter.setPen(Qt::red);
    for (const QRect& block : difference.blocks) {
        painter.drawRect(block.adjusted(0, 0, -1, -1));
        painter.drawRect(block.translated(kept.width() + kGap, 0).adjusted(0, 0, -1, -1));
    }
    return picture;
}

QString compareWithKept(const QImage& present, const QString& name, const QString& keptFolder,
                        const QString& differenceFolder)
{
    const QString keptFile = QDir(keptFolder).filePath(name + QStringLiteral(".png"));
    const QImage kept = QImage(keptFile).convertToFormat(QImage::Format_RGB32);
    if (kept.isNull()) {
        return QStringLiteral("%1: there is no such picture; scripts/pictures makes it").arg(keptFile);
    }
    const Difference difference = differenceOf(kept, present);
    if (difference.reason.isEmpty()) {
        return QString();
    }
    const QString shown = QDir(differenceFolder).absoluteFilePath(name + QStringLiteral(".png"));
    QDir().mkpath(differenceFolder);
    const bool isWritten = differencePicture(kept, present, difference).save(shown, "PNG");
    return QStringLiteral("%1: %2; both are side by side in %3%4")
        .arg(name, difference.reason, shown, isWritten ? QString() : QStringLiteral(", which cannot be written"));
}

QString checkPicture(QWidget* window, const QString& scene, const Setting& setting)
{
    if (!LOOKS_COMPARE || !setting.hasPictures()) {
        return QString();
    }
    const QString name = scene + QLatin1Char('-') + setting.name();
    const QString folder = QStringLiteral(LOOKS_KEPT_PICTURES);
    const QImage present = reducedPicture(window);
    if (!qEnvironmentVariableIsSet("LOOKS_WRITE_PICTURES")) {
        return compareWithKept(present, name, folder, QStringLiteral(LOOKS_DIFFERENCES));
    }
    const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
    return inFewColors(present).save(file, "PNG", 0) ? QString() : QStringLiteral("%1: cannot be written").arg(file);
}

} // namespace looks
