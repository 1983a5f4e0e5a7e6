// The toolkit counts everything that the module allocates. Only the module uses these operators, since it doesn't
// export them. Their blocks may be passed to plain free, and blocks of malloc to them, so an object may be made inside
// of the module and deleted outside, or the other way round. Over-aligned types, which the module doesn't have, aren't
// redirected.

#include "meridane/base/MrdMemory.h"

#include <cstddef>
#include <new>

namespace {

void* allocate(std::size_t size) noexcept
{
    return safeMalloc(nullptr, 0, size, pMrd_memCnt);
}

void release(void* pointer) noexcept
{
    safeFree(pointer, pMrd_memCnt);
}

void* allocateOrThrow(std::size_t size)
{
    while (true) {
        if (void* const pointer = allocate(size))
            return pointer;
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr)
            throw std::bad_alloc();
        handler();
    }
}

void* allocateOrNull(std::size_t size) noexcept
{
    try {
        return allocateOrThrow(size);
    } catch (...) {
        return nullptr;
    }
}

} // namespace

void* operator new(std::size_t size)
{
    return allocateOrThrow(size);
}

void* operator new[](std::size_t size)
{
    return allocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return allocateOrNull(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return allocateOrNull(size);
}

void operator delete(void* pointer) noexcept
{
    release(pointer);
}

void operator delete[](void* pointer) noexcept
{
    release(pointer);
}

void operator delete(void* pointer, std::size_t /*size*/) noexcept
{
    release(pointer);
}

void operator delete[](void* pointer, std::size_t /*size*/) noexcept
{
    release(pointer);
}

void operator delete(void* pointer, const std::nothrow_t& /*tag*/) noexcept
{
    release(pointer);
}

void operator delete[](void* pointer, const std::nothrow_t& /*tag*/) noexcept
{
    release(pointer);
}
