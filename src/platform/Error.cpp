#include "platform/Error.h"

#include <array>
#include <string_view>

namespace kvr5 {
namespace {

struct Words {
  int number;
  std::string_view text;
};

constexpr std::array kWords{
    Words{0, ""},
    Words{errors::InvalidCall, "Invalid procedure call or argument"},
    Words{errors::Overflow, "Overflow"},
    Words{errors::OutOfMemory, "Out of memory"},
    Words{errors::SubscriptOutOfRange, "Subscript out of range"},
    Words{errors::DivisionByZero, "Division by zero"},
    Words{errors::TypeMismatch, "Type mismatch"},
    Words{errors::BadFileName, "Bad file name or number"},
    Words{errors::FileNotFound, "File not found"},
    Words{errors::FileAlreadyOpen, "File already open"},
    Words{errors::DeviceIo, "Device I/O error"},
    Words{errors::FileExists, "File already exists"},
    Words{errors::DiskFull, "Disk full"},
    Words{errors::PastEndOfFile, "Input past end of file"},
    Words{errors::BadRecordNumber, "Bad record number"},
    Words{errors::DeviceUnavailable, "Device unavailable"},
    Words{errors::PermissionDenied, "Permission denied"},
    Words{errors::DiskNotReady, "Disk not ready"},
    Words{errors::PathFileAccess, "Path/File access error"},
    Words{errors::PathNotFound, "Path not found"},
    Words{errors::Cancelled, "The operation was canceled by the user"},
    Words{errors::NoCurrentRecord,
          "Either BOF or EOF is True, or the current record has been deleted"},
    Words{errors::ObjectClosed, "Operation is not allowed when the object is closed"},
    Words{errors::BadStatement, "Syntax error in the statement"},
    Words{errors::CannotOpen, "Unspecified error"},
};

}  // namespace

Error::Error(int number) : number_(number) {
  description_ = "Application-defined or object-defined error";
  for (const auto& words : kWords) {
    if (words.number == number) description_ = words.text;
  }
}

}  // namespace kvr5
