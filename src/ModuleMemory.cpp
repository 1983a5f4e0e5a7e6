// Everything that the module allocates is counted by the toolkit. The operators serve the module alone, since it
// exports none of them; what they hand out may go to plain free and the other way round, so objects may be made on one
// side of the border and deleted on the other. Over-aligned types, which the module has none of, are not redirected.

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
