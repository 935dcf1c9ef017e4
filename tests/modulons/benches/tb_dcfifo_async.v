// Bench of the dual-clock FIFO variation dcfifo_async (16 words of 16 bits), its clocks unrelated (periods 14
// and 22, their edges never together), the same checks as the VHDL bench's: a scoreboard checks that every
// word written is read back in order, that no word is read from an empty FIFO or written to a full one, and
// that each side's flags and count agree with the words held; the requests come in phases that fill and empty
// it.
module tb_dcfifo_async;
  localparam words = 16, enough = 600;
  reg wrclk = 0, rdclk = 0, wrreq = 0, rdreq = 0;
  reg [15:0] data = 0, write_random = 16'h0001, read_random = 16'h0007, expected = 0;
  wire [15:0] q;
  wire rdempty, rdfull, wrempty, wrfull;
  wire [3:0] rdusedw, wrusedw;
  integer written = 0, read = 0, held, failures = 0, full_seen = 0, empty_seen = 0;
  reg accepted;

  dcfifo_async dut (.data(data), .wrreq(wrreq), .wrclk(wrclk), .rdreq(rdreq), .rdclk(rdclk), .q(q),
                    .rdempty(rdempty), .rdfull(rdfull), .rdusedw(rdusedw), .wrempty(wrempty), .wrfull(wrfull),
                    .wrusedw(wrusedw));

  // wrclk rises at 14k + 7, rdclk at 22k + 14.
  always #7 wrclk = !wrclk;
  initial begin
    #3;
    forever #11 rdclk = !rdclk;
  end

  task fail(input [8*48-1:0] what);
    begin
      $display("FAIL at %0t: %0s (written %0d, read %0d)", $time, what, written, read);
      failures = failures + 1;
    end
  endtask

  // The next value of a 16-bit shift register, and a request with a chance in percent that depends on the
  // phase: mostly writing, mostly reading, both.
  function [15:0] next(input [15:0] value);
    next = (value >> 1) ^ (value[0] ? 16'hb400 : 16'h0000);
  endfunction
  function chance(input [15:0] value, input integer writing);
    integer phase;
    begin
      phase = ($time / 3000) % 3;
      chance = value % 100 < (phase == 2 ? 60 : (phase == 0) == writing ? 80 : 25);
    end
  endfunction

  always @(posedge wrclk) begin
    held = written - read;
    if (held == words && !wrfull) fail("wrfull low while the FIFO is full");
    if (wrempty && held != 0) fail("wrempty high while the FIFO holds words");
    if ((wrfull ? words : wrusedw) < held) fail("wrusedw below the words held");
    if (wrfull) full_seen = full_seen + 1;
    if (wrreq && !wrfull) begin
      if (held >= words) fail("a word written while full");
      written = written + 1;
    end
    write_random = next(write_random);
    #1 wrreq = chance(write_random, 1);
    data = written;
  end

  always @(posedge rdclk) begin
    held = written - read;
    if (held == 0 && !rdempty) fail("rdempty low while the FIFO is empty");
    if ((rdfull ? words : rdusedw) > held) fail("rdusedw above the words held");
    if (rdempty) empty_seen = empty_seen + 1;
    accepted = rdreq && !rdempty;
    if (accepted) begin
      if (held == 0) fail("a word read while empty");
      expected = read;
      read = read + 1;
    end
    read_random = next(read_random);
    #1 if (accepted && q !== expected) fail("a word out of order");
    rdreq = chance(read_random, 0);
    if (read == enough) begin
      if (full_seen == 0 || empty_seen == 0) fail("the FIFO was never full or never empty");
      if (failures == 0) $display("PASS %0d words, wrfull seen %0d times, rdempty %0d times", read, full_seen,
                                  empty_seen);
      $finish;
    end
  end

  initial begin
    #100000 fail("stalled");
    $finish;
  end
endmodule
