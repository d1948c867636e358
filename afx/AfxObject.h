// Run-time class information, and the base of the framework's classes that have it.
#pragma once

#include "afx/AfxBase.h"

class CObject;

// What is known about a class at run time. One static object per class, never freed.
struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    const CRuntimeClass* m_pBaseClass;

    // TRUE for the class itself too.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

class CObject {
public:
    static const CRuntimeClass classCObject;

    virtual ~CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    virtual CRuntimeClass* GetRuntimeClass() const;
    // TRUE when the object's class is the given one or derives from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

protected:
    CObject() = default;
};

#define RUNTIME_CLASS(class_name) (const_cast<CRuntimeClass*>(&class_name::class##class_name))

// Inside a class; what follows is public. No semicolon after it.
#define DECLARE_DYNAMIC(class_name)               \
public:                                           \
    static const CRuntimeClass class##class_name; \
    virtual CRuntimeClass* GetRuntimeClass() const;

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                          \
    const CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class class_name), \
                                                         RUNTIME_CLASS(base_class_name)};       \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                        \
        return RUNTIME_CLASS(class_name);                                                       \
    }
