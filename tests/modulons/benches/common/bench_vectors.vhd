-- Reading a vectors file (tests/modulons/vectors, made by reference/make_vectors.py) for a modulon bench, and
-- comparing outputs with their expected values. A bench opens the file with open_vectors, reads each line
-- with next_line, drives its inputs with apply, reads its expected outputs with read_value, compares them with
-- check after the inputs settled (and before the line's clock edge), and
-- ends with finish, which reports PASS when every check matched.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;

package bench_vectors is
  -- Where a bench is in its file and what it has found.
  type tally is record
    line, checks, errors : NATURAL;
  end record;

  -- Opens the file and skips its header line.
  procedure open_vectors(file f : text; path : STRING; t : inout tally);
  -- Reads the next line of values; more is false at the end of the file.
  procedure next_line(file f : text; l : inout line; t : inout tally; more : out BOOLEAN);
  -- Reads one hexadecimal value: its digits fill the vector from the right; a lone "x" is a don't-care (every
  -- bit '-'), an "x" digit four don't-care bits, a "z" digit four high-impedance bits.
  procedure read_value(l : inout line; v : out STD_LOGIC_VECTOR);
  procedure read_value(l : inout line; v : out STD_LOGIC);
  -- Reads one value and drives it on an input signal of the variation.
  procedure apply(l : inout line; signal s : out STD_LOGIC_VECTOR);
  procedure apply(l : inout line; signal s : out STD_LOGIC);
  -- Compares an output with its expected value, '-' bits aside, and reports a difference.
  procedure check(name : STRING; got, want : STD_LOGIC_VECTOR; t : inout tally);
  procedure check(name : STRING; got, want : STD_LOGIC; t : inout tally);
  -- Reports PASS when every check matched and at least one was made.
  procedure finish(t : tally);
end package bench_vectors;

package body bench_vectors is
  procedure open_vectors(file f : text; path : STRING; t : inout tally) is
    variable status : FILE_OPEN_STATUS;
    variable header : line;
  begin
    file_open(status, f, path, read_mode);
    assert status = open_ok and not endfile(f) report "FAIL: cannot read " & path severity failure;
    readline(f, header);
    t := (line => 1, checks => 0, errors => 0);
  end procedure;

  procedure next_line(file f : text; l : inout line; t : inout tally; more : out BOOLEAN) is
  begin
    more := not endfile(f);
    if not endfile(f) then
      readline(f, l);
      t.line := t.line + 1;
    end if;
  end procedure;

  -- The four bits of one hexadecimal digit.
  function nibble_of(c : CHARACTER) return STD_LOGIC_VECTOR is
  begin
    case c is
      when 'x' | 'X' => return "----";
      when 'z' | 'Z' => return "ZZZZ";
      when '0' to '9' => return STD_LOGIC_VECTOR(to_unsigned(CHARACTER'pos(c) - CHARACTER'pos('0'), 4));
      when 'a' to 'f' => return STD_LOGIC_VECTOR(to_unsigned(CHARACTER'pos(c) - CHARACTER'pos('a') + 10, 4));
      when 'A' to 'F' => return STD_LOGIC_VECTOR(to_unsigned(CHARACTER'pos(c) - CHARACTER'pos('A') + 10, 4));
      when others =>
        report "FAIL: '" & c & "' is not a hexadecimal digit" severity failure;
        return "----";
    end case;
  end function;

  procedure read_value(l : inout line; v : out STD_LOGIC_VECTOR) is
    variable c : CHARACTER;
    variable ok : BOOLEAN;
    variable digits : NATURAL := 0;
    variable lone_x : BOOLEAN := false;
    variable result : STD_LOGIC_VECTOR(4*64-1 downto 0) := (others => '0');
  begin
    loop  -- blanks before the value
      read(l, c, ok);
      exit when not ok or (c /= ' ' and c /= HT);
    end loop;
    while ok and c /= ' ' and c /= HT loop
      digits := digits + 1;
      lone_x := digits = 1 and (c = 'x' or c = 'X');
      result := result(4*63-1 downto 0) & nibble_of(c);
      read(l, c, ok);
    end loop;
    if lone_x then
      v := (v'range => '-');
    else
      v := result(v'length-1 downto 0);
    end if;
  end procedure;

  procedure read_value(l : inout line; v : out STD_LOGIC) is
    variable one : STD_LOGIC_VECTOR(0 downto 0);
  begin
    read_value(l, one);
    v := one(0);
  end procedure;

  procedure apply(l : inout line; signal s : out STD_LOGIC_VECTOR) is
    variable v : STD_LOGIC_VECTOR(s'range);
  begin
    read_value(l, v);
    s <= v;
  end procedure;

  procedure apply(l : inout line; signal s : out STD_LOGIC) is
    variable v : STD_LOGIC;
  begin
    read_value(l, v);
    s <= v;
  end procedure;

  procedure check(name : STRING; got, want : STD_LOGIC_VECTOR; t : inout tally) is
    alias g : STD_LOGIC_VECTOR(got'length-1 downto 0) is got;
    alias w : STD_LOGIC_VECTOR(want'length-1 downto 0) is want;
    variable same : BOOLEAN := true;
  begin
    for i in w'range loop
      if w(i) /= '-' and g(i) /= w(i) then same := false; end if;
    end loop;
    t.checks := t.checks + 1;
    if not same then
      t.errors := t.errors + 1;
      report "FAIL line " & INTEGER'image(t.line) & " " & name & ": got " & to_hstring(got) & ", expected " &
             to_hstring(want) severity error;
    end if;
  end procedure;

  procedure check(name : STRING; got, want : STD_LOGIC; t : inout tally) is
  begin
    check(name, (0 => got), (0 => want), t);
  end procedure;

  procedure finish(t : tally) is
  begin
    if t.errors = 0 and t.checks > 0 then
      report "PASS (" & INTEGER'image(t.checks) & " checks)";
    end if;
  end procedure;
end package body bench_vectors;
