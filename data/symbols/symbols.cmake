# Every symbol drawn for Vantrel: monochrome SVGs, black on transparent, tinted when drawn.
# Named as the symbols of the same meaning are named elsewhere ("gear", "hand.draw").
set(VANTREL_SYMBOL_FILES
    gear.svg
)
list(TRANSFORM VANTREL_SYMBOL_FILES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
