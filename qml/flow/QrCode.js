// SPDX-License-Identifier: BSD-3-Clause
.pragma library

// QR codes (ISO/IEC 18004) of bytes at error correction level M, which survives a scratch over a seventh of the code.
// The pages load nothing but what Qt brings, so this is theirs.

// By version, 1 to 40: error correction codewords in each block, and the number of blocks.
var checkLength = [10, 16, 26, 18, 24, 16, 18, 22, 22, 26, 30, 22, 22, 24, 24, 28, 28, 26, 26, 26,
                   26, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28, 28];
var blockCount = [1, 1, 1, 2, 2, 4, 4, 4, 5, 5, 5, 8, 9, 9, 10, 10, 11, 13, 14, 16,
                  17, 17, 18, 20, 21, 23, 25, 26, 28, 29, 31, 33, 35, 37, 38, 40, 43, 45, 47, 49];

// Powers and logarithms in the field of 256 elements that the code calculates in.
var power = [], logarithm = [];
for (var exponent = 0, element = 1; exponent < 255; ++exponent) {
    power[exponent] = element;
    logarithm[element] = exponent;
    element = element << 1 ^ (element & 0x80 ? 0x11d : 0);
}

function multiply(a, b) {
    return a === 0 || b === 0 ? 0 : power[(logarithm[a] + logarithm[b]) % 255];
}

function utf8(text) {
    return unescape(encodeURIComponent(text)).split("").map(function(character) { return character.charCodeAt(0); });
}

// Codewords, data and checks together, that a version holds.
function capacity(version) {
    var modules = (16 * version + 128) * version + 64;
    if (version >= 2) {
        var marks = Math.floor(version / 7) + 2;
        modules -= (25 * marks - 10) * marks - 55;
    }
    if (version >= 7)
        modules -= 36;
    return Math.floor(modules / 8);
}

function dataCapacity(version) {
    return capacity(version) - checkLength[version - 1] * blockCount[version - 1];
}

function lengthBits(version) {
    return version < 10 ? 8 : 16;
}

function fittingVersion(bytes) {
    for (var version = 1; version <= 40; ++version) {
        if (4 + lengthBits(version) + 8 * bytes <= 8 * dataCapacity(version))
            return version;
    }
    return 0;
}

function dataCodewords(bytes, version) {
    var codewords = [], room = dataCapacity(version), value = 0, filled = 0;
    function append(number, bits) {
        for (var bit = bits - 1; bit >= 0; --bit) {
            value = value << 1 | (number >> bit & 1);
            if (++filled === 8) {
                codewords.push(value);
                value = filled = 0;
            }
        }
    }
    append(4, 4); // bytes follow
    append(bytes.length, lengthBits(version));
    bytes.forEach(function(byte) { append(byte, 8); });
    append(0, Math.min(4, 8 * (room - codewords.length) - filled));
    append(0, (8 - filled) % 8);
    for (var padding = 0xec; codewords.length < room; padding ^= 0xec ^ 0x11)
        codewords.push(padding);
    return codewords;
}

// The polynomial whose remainder the checks are, without its leading 1.
function generator(length) {
    var polynomial = [];
    for (var i = 0; i < length; ++i)
        polynomial.push(i === length - 1 ? 1 : 0);
    for (var root = 0; root < length; ++root) {
        for (var j = 0; j < length; ++j)
            polynomial[j] = multiply(polynomial[j], power[root]) ^ (j + 1 < length ? polynomial[j + 1] : 0);
    }
    return polynomial;
}

function checks(data, polynomial) {
    var remainder = polynomial.map(function() { return 0; });
    data.forEach(function(byte) {
        var factor = byte ^ remainder.shift();
        remainder.push(0);
        polynomial.forEach(function(coefficient, i) { remainder[i] ^= multiply(coefficient, factor); });
    });
    return remainder;
}

// All codewords in the order in which they are drawn: the blocks' first ones, their second ones, and so on.
function codewordsOf(bytes, version) {
    var data = dataCodewords(bytes, version), count = blockCount[version - 1];
    var polynomial = generator(checkLength[version - 1]);
    var shortLength = Math.floor(data.length / count), longBlocks = data.length % count;
    var blocks = [], at = 0;
    for (var i = 0; i < count; ++i) {
        var length = shortLength + (i >= count - longBlocks ? 1 : 0);
        var part = data.slice(at, at + length);
        at += length;
        blocks.push({ data: part, checks: checks(part, polynomial) });
    }
    var result = [];
    ["data", "checks"].forEach(function(kind) {
        for (var place = 0; place < Math.max(shortLength + 1, polynomial.length); ++place) {
            blocks.forEach(function(block) {
                if (place < block[kind].length)
                    result.push(block[kind][place]);
            });
        }
    });
    return result;
}

function alignmentPlaces(version) {
    if (version === 1)
        return [];
    var count = Math.floor(version / 7) + 2;
    var step = version === 32 ? 26 : Math.ceil((4 * version + 4) / (2 * count - 2)) * 2;
    var places = [6];
    for (var i = count - 2; i >= 0; --i)
        places.push(4 * version + 10 - i * step);
    return places;
}

// A bit and its check bits: bits of the number, then the remainder by the polynomial of the given degree.
function withRemainder(number, polynomial, degree) {
    var remainder = number;
    for (var i = 0; i < degree; ++i)
        remainder = remainder << 1 ^ (remainder >> degree - 1) * polynomial;
    return number << degree | remainder;
}

function emptyRows(size) {
    var rows = [];
    for (var y = 0; y < size; ++y) {
        rows.push([]);
        for (var x = 0; x < size; ++x)
            rows[y].push(0);
    }
    return rows;
}

// What is the same in every code of a version, and where it stands.
function frame(version) {
    var size = 4 * version + 17, dark = emptyRows(size), taken = emptyRows(size);
    function set(x, y, value) {
        if (x >= 0 && y >= 0 && x < size && y < size) {
            dark[y][x] = value ? 1 : 0;
            taken[y][x] = 1;
        }
    }
    function rings(middleX, middleY, radius, isDark) {
        for (var y = -radius; y <= radius; ++y) {
            for (var x = -radius; x <= radius; ++x)
                set(middleX + x, middleY + y, isDark(Math.max(Math.abs(x), Math.abs(y))));
        }
    }
    for (var i = 0; i < size; ++i) {
        set(6, i, i % 2 === 0);
        set(i, 6, i % 2 === 0);
    }
    function finder(distance) { return distance !== 2 && distance !== 4; }
    rings(3, 3, 4, finder);
    rings(size - 4, 3, 4, finder);
    rings(3, size - 4, 4, finder);
    var places = alignmentPlaces(version), last = places.length - 1;
    places.forEach(function(x, column) {
        places.forEach(function(y, row) {
            if (!(column === 0 && row === 0) && !(column === 0 && row === last) && !(column === last && row === 0))
                rings(x, y, 2, function(distance) { return distance !== 1; });
        });
    });
    if (version >= 7) {
        var bits = withRemainder(version, 0x1f25, 12);
        for (var bit = 0; bit < 18; ++bit) {
            set(size - 11 + bit % 3, Math.floor(bit / 3), bits >> bit & 1);
            set(Math.floor(bit / 3), size - 11 + bit % 3, bits >> bit & 1);
        }
    }
    setFormat(0, size, set);
    return { size: size, dark: dark, taken: taken };
}

// Level M, whose number is 0, and the mask; twice.
function setFormat(mask, size, set) {
    var bits = withRemainder(mask, 0x537, 10) ^ 0x5412;
    for (var i = 0; i < 15; ++i) {
        var bit = bits >> i & 1;
        set(8, i < 6 ? i : i < 8 ? i + 1 : size - 15 + i, bit);
        set(i < 8 ? size - 1 - i : i === 8 ? 7 : 14 - i, 8, bit);
    }
    set(8, size - 8, 1);
}

function placeCodewords(code, codewords) {
    var bit = 0, size = code.size;
    for (var right = size - 1; right >= 1; right -= 2) {
        if (right === 6)
            right = 5;
        for (var step = 0; step < size; ++step) {
            var y = (right + 1 & 2) === 0 ? size - 1 - step : step;
            for (var x = right; x > right - 2; --x) {
                if (code.taken[y][x] || bit >= 8 * codewords.length)
                    continue;
                code.dark[y][x] = codewords[bit >> 3] >> 7 - (bit & 7) & 1;
                ++bit;
            }
        }
    }
}

var masks = [
    function(x, y) { return (x + y) % 2 === 0; },
    function(x, y) { return y % 2 === 0; },
    function(x, y) { return x % 3 === 0; },
    function(x, y) { return (x + y) % 3 === 0; },
    function(x, y) { return (Math.floor(x / 3) + Math.floor(y / 2)) % 2 === 0; },
    function(x, y) { return x * y % 2 + x * y % 3 === 0; },
    function(x, y) { return (x * y % 2 + x * y % 3) % 2 === 0; },
    function(x, y) { return ((x + y) % 2 + x * y % 3) % 2 === 0; }
];

function masked(code, mask) {
    var rows = code.dark.map(function(row, y) {
        return row.map(function(dark, x) { return code.taken[y][x] ? dark : dark ^ (masks[mask](x, y) ? 1 : 0); });
    });
    setFormat(mask, code.size, function(x, y, value) { rows[y][x] = value ? 1 : 0; });
    return rows;
}

// How hard a pattern is to read: long runs, squares of one colour, what looks like a finder, too much of one colour.
function penalty(rows) {
    var size = rows.length, sum = 0, darkCount = 0;
    for (var across = 0; across < 2; ++across) {
        for (var i = 0; i < size; ++i) {
            var run = 0, before = -1, window = 0;
            for (var j = 0; j < size; ++j) {
                var value = across ? rows[j][i] : rows[i][j];
                run = value === before ? run + 1 : 1;
                before = value;
                if (run === 5)
                    sum += 3;
                else if (run > 5)
                    ++sum;
                window = (window << 1 | value) & 0x7ff;
                if (j >= 10 && (window === 0x05d || window === 0x5d0))
                    sum += 40;
            }
        }
    }
    for (var y = 0; y < size; ++y) {
        for (var x = 0; x < size; ++x) {
            var dark = rows[y][x];
            darkCount += dark;
            if (y > 0 && x > 0 && dark === rows[y - 1][x] && dark === rows[y][x - 1] && dark === rows[y - 1][x - 1])
                sum += 3;
        }
    }
    return sum + 10 * Math.floor(Math.abs(20 * darkCount / (size * size) - 10));
}

// Rows of 1 (dark) and 0; empty if the text is longer than any code holds.
function encode(text) {
    var bytes = utf8(text), version = fittingVersion(bytes.length);
    if (version === 0)
        return [];
    var code = frame(version), best = [], least = Infinity;
    placeCodewords(code, codewordsOf(bytes, version));
    for (var mask = 0; mask < masks.length; ++mask) {
        var rows = masked(code, mask), badness = penalty(rows);
        if (badness < least) {
            least = badness;
            best = rows;
        }
    }
    return best;
}
