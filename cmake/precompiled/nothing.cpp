// A target has to have a source; what counts is the header that is precompiled for it.
