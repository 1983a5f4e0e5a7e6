#pragma once

#include "meridane/base/errors/ErrorClass.h"
#include "meridane/base/values/VbName.h"

// The members of ErrorClass, for the source files that instantiate it.
namespace meridane {

template <typename Error, typename Base>
constinit ErrorHandlerSlot ErrorClass<Error, Base>::s_handler;

template <typename Error, typename Base>
NxType ErrorClass<Error, Base>::getTypeId() const
{
    return getClassTypeId();
}

template <typename Error, typename Base>
NxType ErrorClass<Error, Base>::getClassTypeId()
{
    static const NxType type = NxType::registerClass(Error::typeName, Base::getClassTypeId(), nullptr);
    return type;
}

template <typename Error, typename Base>
NxErrorHandler ErrorClass<Error, Base>::getHandlerCallback()
{
    return s_handler.callback();
}

template <typename Error, typename Base>
void* ErrorClass<Error, Base>::getHandlerData()
{
    return s_handler.data();
}

template <typename Error, typename Base>
void ErrorClass<Error, Base>::setHandlerCallback(NxErrorHandler callback, void* data)
{
    s_handler.set(callback, data);
}

template <typename Error, typename Base>
void ErrorClass<Error, Base>::deliver(const Error& error)
{
    s_handler.deliver(error);
}

} // namespace meridane
