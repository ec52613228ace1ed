// SPDX-License-Identifier: MIT
#include "tools/gzip_content.h"

#include <zlib.h>

namespace brelex {

GzipContent ExpandGzip(std::string_view file, std::size_t mostBytes) {
    if (!file.starts_with("\x1f\x8b")) {
        return {std::string(file), ""};
    }
    z_stream stream{};
    stream.next_in = reinterpret_cast<const Bytef*>(file.data());
    stream.avail_in = static_cast<uInt>(file.size());
    constexpr int kGzip = 16;  // added to the window size to expect a gzip header
    int status = inflateInit2(&stream, MAX_WBITS + kGzip);
    GzipContent content;
    std::string chunk(std::size_t{1} << 16U, '\0');
    while (status == Z_OK && content.bytes.size() <= mostBytes) {
        stream.next_out = reinterpret_cast<Bytef*>(chunk.data());
        stream.avail_out = static_cast<uInt>(chunk.size());
        status = inflate(&stream, Z_NO_FLUSH);
        content.bytes.append(chunk, 0, chunk.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    if (content.bytes.size() > mostBytes) {
        return {"", "expands to more than the 1 GiB that the program can read"};
    }
    if (status != Z_STREAM_END) {
        return {"", status == Z_MEM_ERROR ? "does not fit into memory" : "is damaged"};
    }
    return content;
}

}  // namespace brelex
