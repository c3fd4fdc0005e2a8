// file_opener: hands a written file to the program that the system has for it.
#pragma once

#include <string_view>

namespace kvt {

class file_opener {
  public:
    virtual ~file_opener() = default;

    /// Nothing happens where the system has no program for the file.
    virtual void open_file(std::string_view path) = 0;
};

}  // namespace kvt
