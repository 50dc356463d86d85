# Every symbol drawn for Vantrel: monochrome SVGs, black on transparent, tinted when drawn.
# Named as the symbols of the same meaning are named elsewhere ("gear", "hand.draw").
set(VANTREL_SYMBOL_FILES
    MenuBarIcon.svg
    character.cursor.ibeam.svg
    checkmark.circle.fill.svg
    display.svg
    gear.svg
    globe.svg
    hand.draw.svg
    info.circle.svg
    inset.filled.bottomleft.rectangle.svg
    inset.filled.bottomright.rectangle.svg
    inset.filled.bottomthird.rectangle.svg
    inset.filled.topleft.rectangle.svg
    inset.filled.topright.rectangle.svg
    inset.filled.topthird.rectangle.svg
    keyboard.badge.ellipsis.svg
    keyboard.fill.svg
    keyboard.onehanded.left.svg
    keyboard.onehanded.right.svg
    keyboard.svg
    paintbrush.svg
    plus.svg
    textformat.123.svg
    textformat.abc.dottedunderline.svg
    textformat.abc.svg
    trash.fill.svg
    xmark.circle.fill.svg
    youtube.svg
)
list(TRANSFORM VANTREL_SYMBOL_FILES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
