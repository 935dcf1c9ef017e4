-- Divider library module: quotient and remain of numer divided by denom, each read unsigned or signed. The
-- quotient is rounded toward zero and the remainder takes the numerator's sign; with lpm_remainderpositive
-- "TRUE" a negative remainder is made positive by adding |denom| and correcting the quotient by one, so that
-- numer = quotient * denom + remain with 0 <= remain < |denom|. Division by zero gives a quotient of all ones
-- and the numerator's low bits as remainder. Outputs are the results' low bits.
-- With lpm_pipeline > 0 both outputs pass that many registers clocked by clock while clken is high and
-- cleared by aclr; registers hold unknown values until filled or cleared.
library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lpm_divide is
  generic (lpm_widthn : NATURAL; lpm_widthd : NATURAL; lpm_nrepresentation : STRING := "UNSIGNED";
           lpm_drepresentation : STRING := "UNSIGNED"; lpm_remainderpositive : STRING := "TRUE";
           lpm_pipeline : NATURAL := 0; lpm_type : STRING := "LPM_DIVIDE"; lpm_hint : STRING := "UNUSED");
  port (numer : in STD_LOGIC_VECTOR(lpm_widthn-1 downto 0); denom : in STD_LOGIC_VECTOR(lpm_widthd-1 downto 0);
        clock, aclr : in STD_LOGIC := '0'; clken : in STD_LOGIC := '1';
        quotient : out STD_LOGIC_VECTOR(lpm_widthn-1 downto 0); remain : out STD_LOGIC_VECTOR(lpm_widthd-1 downto 0));
end lpm_divide;

architecture behaviour of lpm_divide is
  function larger (a, b : NATURAL) return NATURAL is
  begin
    if a > b then return a; end if;
    return b;
  end function;
  -- Both operands as signed numbers two bits wider than the wider of them, where every quotient and remainder
  -- of the operands' ranges fits.
  constant wide : NATURAL := larger(lpm_widthn, lpm_widthd) + 2;
  subtype word is STD_LOGIC_VECTOR(lpm_widthn+lpm_widthd-1 downto 0);
  type stages is array (NATURAL range <>) of word;
  signal stage : stages(0 to lpm_pipeline);
begin
  process (numer, denom)
    variable n, d, q, r : SIGNED(wide-1 downto 0);
  begin
    if lpm_nrepresentation = "SIGNED" then
      n := resize(SIGNED(numer), wide);
    else
      n := SIGNED(resize(UNSIGNED(numer), wide));
    end if;
    if lpm_drepresentation = "SIGNED" then
      d := resize(SIGNED(denom), wide);
    else
      d := SIGNED(resize(UNSIGNED(denom), wide));
    end if;
    if d = 0 then
      q := (others => '1');
      r := n;
    else
      q := n / d;
      r := n rem d;
      if lpm_remainderpositive = "TRUE" and r < 0 then
        if d > 0 then
          q := q - 1;
          r := r + d;
        else
          q := q + 1;
          r := r - d;
        end if;
      end if;
    end if;
    stage(0) <= STD_LOGIC_VECTOR(q(lpm_widthn-1 downto 0)) & STD_LOGIC_VECTOR(r(lpm_widthd-1 downto 0));
  end process;

  pipeline : for k in 1 to lpm_pipeline generate
    process (clock, aclr)
    begin
      if aclr = '1' then
        stage(k) <= (others => '0');
      elsif rising_edge(clock) and clken = '1' then
        stage(k) <= stage(k-1);
      end if;
    end process;
  end generate;

  quotient <= stage(lpm_pipeline)(lpm_widthn+lpm_widthd-1 downto lpm_widthd);
  remain <= stage(lpm_pipeline)(lpm_widthd-1 downto 0);
end behaviour;
