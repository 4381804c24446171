# Copies the translation source IN to OUT without the languages named in its head.
file(READ ${IN} text)
string(REGEX REPLACE " (source)?language=\"[A-Za-z_]*\"" "" text "${text}")
file(WRITE ${OUT} "${text}")
