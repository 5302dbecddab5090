#pragma once

// Nothing leaves the toolkit but a result: what body throws, memory that ran out, is its failure.
template <class Result, class Body> Result Guarded(Result failure, Body&& body) noexcept
{
    try {
        return body();
    } catch (...) {
        return failure;
    }
}

template <class Body> void Guarded(Body&& body) noexcept
{
    try {
        body();
    } catch (...) {
        return; // there is nobody to tell
    }
}
