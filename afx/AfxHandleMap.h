// Which object belongs to a Windows handle.
//
// A permanent object owns its handle and is entered and removed by its class. Any other handle gets a
// temporary object that owns nothing; temporary objects form a stack and are freed from its top when the
// scope that they were made in ends (AFX_MAINTAIN_STATE2). Maps are for the user-interface thread alone.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <unordered_map>
#include <vector>

// The stack of temporary objects of all maps.
class CAfxTemporaries {
public:
    using FFree = void (*)(void* handle);
    // Makes sure that the next Push needs no memory.
    static void MakeRoom();
    static void Push(void* handle, FFree free);
    static std::size_t Count();
    // Frees those above the given height.
    static void FreeDownTo(std::size_t count);

private:
    struct Temporary {
        void* handle;
        FFree free;
    };
    static std::vector<Temporary>& Stack();
};

template <class TObject, class THandle, THandle TObject::*Handle>
class CAfxHandleMap {
public:
    static TObject* FindPermanent(THandle handle) { return Find(Permanent(), handle); }
    static void SetPermanent(THandle handle, TObject* object) { Permanent()[handle] = object; }
    static void RemovePermanent(THandle handle) { Remove(Permanent(), handle); }

    // The object that belongs to the handle; make gives a new one for a temporary.
    template <class TMake>
    static TObject* FromHandle(THandle handle, TMake make) {
        if (handle == nullptr) {
            return nullptr;
        }
        if (TObject* const known = FindPermanent(handle)) {
            return known;
        }
        if (TObject* const known = Find(Temporary(), handle)) {
            return known;
        }
        CAfxTemporaries::MakeRoom();
        std::unique_ptr<TObject> temporary(make());
        Temporary().emplace(handle, temporary.get());
        CAfxTemporaries::Push(handle, FreeTemporary);
        temporary.get()->*Handle = handle;
        return temporary.release();
    }

private:
    using Map = std::unordered_map<THandle, TObject*>;

    // Never destroyed, so that objects may be destroyed at any time of the module's end; an empty map
    // holds no memory, so that nothing is left behind either.
    static Map& Permanent() { return Immortal<0>(); }
    static Map& Temporary() { return Immortal<1>(); }
    template <int>
    static Map& Immortal() {
        alignas(Map) static unsigned char memory[sizeof(Map)];
        static Map& map = *new (memory) Map;
        return map;
    }

    static TObject* Find(const Map& map, THandle handle) {
        const auto found = map.find(handle);
        return found != map.end() ? found->second : nullptr;
    }
    static void Remove(Map& map, THandle handle) {
        map.erase(handle);
        if (map.empty()) {
            map = Map();
        }
    }
    static void FreeTemporary(void* pointer) {
        const auto handle = static_cast<THandle>(pointer);
        TObject* const object = Find(Temporary(), handle);
        Remove(Temporary(), handle);
        object->*Handle = nullptr;  // its destructor must leave the handle alone
        delete object;
    }
};
