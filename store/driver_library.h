#pragma once

#include <functional>
#include <memory>

namespace VNT {

// A driver's library, loaded; unloaded when it is destroyed.
class DriverLibrary {
public:
    using Procedure = void (*)();

    virtual ~DriverLibrary() = default;
    virtual Procedure Find(const char* name) const = 0;  // null if there is none of that name

    // `out` becomes the procedure of that name; false if there is none.
    template <class Function>
    bool Find(const char* name, Function*& out) const {
        out = reinterpret_cast<Function*>(Find(name));
        return out != nullptr;
    }
};

// Loads a library of the system's own folder; null if there is none.
using LibraryLoader = std::function<std::unique_ptr<DriverLibrary>(const wchar_t* name)>;

// The first of two libraries that is there, or null.
inline std::unique_ptr<DriverLibrary> LoadEither(const LibraryLoader& load, const wchar_t* first,
                                                 const wchar_t* second) {
    std::unique_ptr<DriverLibrary> library = load(first);
    return library != nullptr ? std::move(library) : load(second);
}

}  // namespace VNT
