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

// A driver's library in use, with its calls. There is one object at a time: the first user makes it, the last one's
// going unloads it. X says what is particular: the names of its libraries, `FindCalls` and `Start`; its destructor
// stops the library.
template <class X, class CallTable>
class TDriver {
public:
    using Calls = CallTable;

    // The one in use, or a new one; null if there is no library, or it lacks a call or doesn't start.
    static std::shared_ptr<const X> Acquire(const LibraryLoader& load) {
        static std::weak_ptr<const X> current;
        if (std::shared_ptr<const X> driver = current.lock()) return driver;
        std::unique_ptr<DriverLibrary> library = load(X::FirstName);
        if (library == nullptr) library = load(X::SecondName);
        Calls calls = {};
        if (library == nullptr || !X::FindCalls(*library, calls) || !X::Start(calls)) return nullptr;
        auto driver = std::make_shared<const X>(std::move(library), calls);
        current = driver;
        return driver;
    }

    TDriver(std::unique_ptr<DriverLibrary> library, const Calls& calls) : library_(std::move(library)), calls_(calls) {}
    TDriver(const TDriver&) = delete;
    TDriver& operator=(const TDriver&) = delete;

    const Calls& Call() const { return calls_; }

protected:
    ~TDriver() = default;

private:
    std::unique_ptr<DriverLibrary> library_;
    Calls calls_;
};

}  // namespace VNT
