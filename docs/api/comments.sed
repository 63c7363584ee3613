# Prepares the comments of a header for Doxygen; INPUT_FILTER in Doxyfile.in calls it.

# A comment before a declaration of several variables applies to all of them.
s|^( *)([A-Za-z_][A-Za-z_0-9:<>, *&]*[ >*&][a-zA-Z_0-9]+( = [^,;()]+)?,( [*&]?[a-zA-Z_0-9]+( = [^,;()]+)?,?)+;)$|\1/** @{ */ \2 /** @} */|
# A comment behind a member ends with its line. Doxygen would take a comment in the next line for its continuation.
s|///< (.*)$|/**< @brief \1 */|
# A comparison that the compiler defines has no comment of its own.
s|^ *bool operator==\(.*\) const = default;|/** @brief Returns true if all members are equal. */&|
