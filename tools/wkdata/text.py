"""ASCII text helpers shared by every writer."""

import unicodedata

# Letters that Unicode decomposition does not reduce to ASCII.
_UNDECOMPOSABLE = str.maketrans({
    "\u00df": "ss", "\u00e6": "ae", "\u00c6": "AE", "\u00f8": "o", "\u00d8": "O",
    "\u0111": "d", "\u0110": "D", "\u0142": "l", "\u0141": "L", "\u0131": "i",
    "\u00fe": "th", "\u00de": "Th", "\u00f0": "d", "\u00d0": "D", "\u0153": "oe",
    "\u2019": "'", "\u2018": "'", "\u02bb": "'", "\u02bc": "'", "\u2013": "-",
})


def to_ascii(text):
    """Transliterates text to 7-bit ASCII ("Sao Paulo", "Zurich"); drops what has no ASCII form."""
    decomposed = unicodedata.normalize("NFKD", text.translate(_UNDECOMPOSABLE))
    return "".join(ch for ch in decomposed if ord(ch) < 128 and not unicodedata.combining(ch)).strip()


def latin1_casefold_key(text):
    """Sort key of the currency store: case-insensitive on Latin-1, then by character code."""
    return (text.lower(), text)
