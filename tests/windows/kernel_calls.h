#pragma once

/// The system below Wine, called directly: Wine tells a program nothing of that system's processes.

/// The kernel's numbers, as x86-64 has them.
enum class Call
{
    Read = 0,
    Write = 1,
    Open = 2,
    Close = 3,
    Poll = 7,
    Signal_Action = 13,
    Duplicate = 33,
    Fork = 57,
    Execute = 59,
    End = 60,
    Wait = 61,
    Kill = 62,
    Read_Link = 89,
    Set_Group = 109,
    Process_Control = 157,
    Pipe = 293,
    Process_Descriptor = 434,
    Close_Range = 436,
};

/// A pointer as an argument of System.
inline long long Address(const void* pointer)
{
    return reinterpret_cast<long long>(pointer);
}

/// What the kernel answers; below 0 is an error's number.
inline long long System(Call call, long long first = 0, long long second = 0, long long third = 0, long long fourth = 0)
{
    long long result = 0;
    register long long tenth_register __asm__("r10") = fourth;
    __asm__ volatile("syscall"
                     : "=a"(result)
                     : "a"(static_cast<long long>(call)), "D"(first), "S"(second), "d"(third), "r"(tenth_register)
                     : "rcx", "r11", "memory");
    return result;
}
