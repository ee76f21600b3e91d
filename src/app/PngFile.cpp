// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PngFile.h"

#include <QFile>
#include <QtEndian>

#include <array>
#include <vector>
#include <zlib.h>

namespace {

constexpr std::array<char, 8> Signature {'\x89', 'P', 'N', 'G', '\r', '\n', '\x1a', '\n'};
constexpr std::size_t OutputChunk = 1 << 20; // bytes of compressed data per IDAT chunk
constexpr unsigned char SubFilter = 1;

// Writes chunks, length, type, data and CRC, and remembers the first failure.
class ChunkWriter
{
public:
    explicit ChunkWriter(QFile& file)
        : m_file(file)
    { }

    void write(const char* type, const unsigned char* data, std::size_t length)
    {
        std::array<unsigned char, 4> bytes {};
        qToBigEndian(static_cast<quint32>(length), bytes.data());
        put(reinterpret_cast<const char*>(bytes.data()), 4);
        put(type, 4);
        put(reinterpret_cast<const char*>(data), length);
        uLong crc = crc32(0, reinterpret_cast<const Bytef*>(type), 4);
        if (length > 0) // zlib starts afresh on a null buffer
            crc = crc32_z(crc, data, length);
        qToBigEndian(static_cast<quint32>(crc), bytes.data());
        put(reinterpret_cast<const char*>(bytes.data()), 4);
    }

    void put(const char* data, std::size_t length)
    {
        if (m_ok && length > 0)
            m_ok = m_file.write(data, static_cast<qint64>(length)) == static_cast<qint64>(length);
    }

    bool ok() const { return m_ok; }

private:
    QFile& m_file;
    bool m_ok = true;
};

// One row as RGB bytes behind its filter byte, each byte less the same channel of the pixel to its left.
void filterRow(const QRgb* pixels, int width, std::vector<unsigned char>& row)
{
    row[0] = SubFilter;
    unsigned char red = 0, green = 0, blue = 0;
    unsigned char* out = row.data() + 1;
    for (int x = 0; x < width; ++x, out += 3) {
        const QRgb pixel = pixels[x];
        out[0] = static_cast<unsigned char>(qRed(pixel) - red);
        out[1] = static_cast<unsigned char>(qGreen(pixel) - green);
        out[2] = static_cast<unsigned char>(qBlue(pixel) - blue);
        red = static_cast<unsigned char>(qRed(pixel));
        green = static_cast<unsigned char>(qGreen(pixel));
        blue = static_cast<unsigned char>(qBlue(pixel));
    }
}

void writeHeader(ChunkWriter& chunks, const QImage& picture)
{
    std::array<unsigned char, 13> header {};
    qToBigEndian(static_cast<quint32>(picture.width()), header.data());
    qToBigEndian(static_cast<quint32>(picture.height()), header.data() + 4);
    header[8] = 8; // bits per channel
    header[9] = 2; // RGB
    chunks.put(Signature.data(), Signature.size());
    chunks.write("IHDR", header.data(), header.size());
}

// Deflates into IDAT chunks of at most OutputChunk bytes.
class Compressor
{
public:
    explicit Compressor(ChunkWriter& chunks)
        : m_chunks(chunks)
        , m_output(OutputChunk)
    {
        m_ready = deflateInit2(&m_stream, Z_BEST_SPEED, Z_DEFLATED, 15, 8, Z_RLE) == Z_OK;
        m_stream.next_out = m_output.data();
        m_stream.avail_out = static_cast<uInt>(m_output.size());
    }
    ~Compressor() { deflateEnd(&m_stream); }
    Compressor(const Compressor&) = delete;
    Compressor& operator=(const Compressor&) = delete;

    // Takes all of `data`; false once anything failed.
    bool add(const std::vector<unsigned char>& data)
    {
        m_stream.next_in = const_cast<unsigned char*>(data.data());
        m_stream.avail_in = static_cast<uInt>(data.size());
        while (m_ready && m_stream.avail_in > 0)
            run(Z_NO_FLUSH);
        return m_ready;
    }

    bool finish()
    {
        while (m_ready && run(Z_FINISH) != Z_STREAM_END) { }
        return m_ready;
    }

private:
    int run(int flush)
    {
        const int status = deflate(&m_stream, flush);
        if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR)
            m_ready = false;
        if (m_stream.avail_out == 0 || status == Z_STREAM_END) {
            m_chunks.write("IDAT", m_output.data(), m_output.size() - m_stream.avail_out);
            m_stream.next_out = m_output.data();
            m_stream.avail_out = static_cast<uInt>(m_output.size());
            m_ready = m_ready && m_chunks.ok();
        }
        return status;
    }

    ChunkWriter& m_chunks;
    std::vector<unsigned char> m_output;
    z_stream m_stream {};
    bool m_ready = false;
};

bool writeImageData(ChunkWriter& chunks, const QImage& picture)
{
    Compressor compressor(chunks);
    std::vector<unsigned char> row(static_cast<std::size_t>(picture.width()) * 3 + 1);
    for (int y = 0; y < picture.height(); ++y) {
        filterRow(reinterpret_cast<const QRgb*>(picture.constScanLine(y)), picture.width(), row);
        if (!compressor.add(row))
            return false;
    }
    return compressor.finish();
}

} // namespace

bool PngFile::write(const QImage& picture, const QString& path, QString& error)
{
    const QImage rgb
        = picture.format() == QImage::Format_RGB32 ? picture : picture.convertToFormat(QImage::Format_RGB32);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        error = file.errorString();
        return false;
    }
    ChunkWriter chunks(file);
    writeHeader(chunks, rgb);
    const bool compressed = writeImageData(chunks, rgb);
    chunks.write("IEND", nullptr, 0);
    if (!compressed || !chunks.ok() || !file.flush()) {
        // A failed write may show only when the buffered rest is flushed: then the file's error is the reason.
        error = compressed || !chunks.ok() ? file.errorString() : QStringLiteral("compression failed");
        file.remove();
        return false;
    }
    return true;
}
