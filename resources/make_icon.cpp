// make_icon IN.svg OUT.ico: draws a picture in every size that a desktop asks for and packs them into one icon file.
// make_icon IN.svg SIZE.png...: draws it into files of one size each, which their names tell.
#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <array>
#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array sizes{16, 24, 32, 48, 64, 128, 256};
constexpr quint32 headerBytes = 6;
constexpr quint32 entryBytes = 16;

QByteArray drawn(QSvgRenderer& picture, int size) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter);
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

// One directory entry. A side of 256 is written as 0, the one value left over in its byte.
void writeEntry(QDataStream& out, int size, quint32 bytes, quint32 offset) {
    constexpr quint16 planes = 1;
    constexpr quint16 bitsPerPixel = 32;
    const auto side = static_cast<quint8>(size % 256);
    out << side << side << quint8{0} << quint8{0} << planes << bitsPerPixel << bytes << offset;
}

QByteArray iconFile(QSvgRenderer& picture) {
    std::vector<QByteArray> images;
    images.reserve(std::size(sizes));
    for (const int size : sizes)
        images.push_back(drawn(picture, size));

    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    constexpr quint16 iconType = 1;
    out << quint16{0} << iconType << static_cast<quint16>(sizes.size());
    quint32 offset = headerBytes + entryBytes * static_cast<quint32>(sizes.size());
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const auto bytes = static_cast<quint32>(images[i].size());
        writeEntry(out, sizes[i], bytes, offset);
        offset += bytes;
    }
    for (const QByteArray& image : images)
        file.append(image);
    return file;
}

/// The bytes of a picture file of that name.
QByteArray fileFor(const QFileInfo& target, QSvgRenderer& picture) {
    return target.suffix() == u"png"_s ? drawn(picture, target.baseName().toInt()) : iconFile(picture);
}

bool make(const QString& target, QSvgRenderer& picture) {
    const QByteArray bytes = fileFor(QFileInfo(target), picture);
    QFile file(target);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("Usage: make_icon IN.svg OUT.ico | make_icon IN.svg SIZE.png...\n", stderr);
        return 2;
    }
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    if (!picture.isValid()) return 1;
    for (int i = 2; i < argc; ++i)
        if (!make(QString::fromLocal8Bit(argv[i]), picture)) return 1;
    return 0;
}
