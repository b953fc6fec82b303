#include "files/files.h"

#include "files/file_path.h"
#include "files/text_encoding.h"
#include "output/failure.h"

#include <fstream>

namespace calvix::host
{

std::string ReadTextFile(const std::string& path)
{
    try
    {
        const std::string bytes = ReadWholeFile(path);
        return ReadingFrom(path, [&bytes] { return ToUtf8(bytes); });
    }
    catch (const CaptureError& error)
    {
        throw BadInput(error.what(), "check the path and the content of the file");
    }
}

void WriteWholeFile(const std::string& path, const std::string& content)
{
    std::ofstream file(PathOf(path), std::ios::binary);
    file << content;
    file.close();
    if (!file)
        throw BadInput(path + ": cannot be written", "check the path and its permissions");
}

} // namespace calvix::host
