// Reading a vectors file (tests/modulons/vectors, made by reference/make_vectors.py) for a modulon bench, and
// comparing outputs with their expected values. A bench instantiates it (bench_vectors v ();), calls v.open,
// reads each line's values with $fscanf(v.file, ...) while v.more, compares with v.check, calls v.next after
// the line's clock edge, and ends with v.finish, which prints PASS when every check matched.
module bench_vectors;
  integer file, line, checks, errors;
  reg [8*4096-1:0] text;
  reg [8*1024-1:0] path;

  // Opens the file named by the plusarg +vectors=PATH and skips its header line.
  task open;
    begin
      line = 2;
      checks = 0;
      errors = 0;
      if (!$value$plusargs("vectors=%s", path)) begin
        $display("FAIL: no +vectors=PATH given");
        $finish;
      end
      file = $fopen(path, "r");
      if (file == 0 || $fgets(text, file) == 0) begin
        $display("FAIL: cannot read %0s", path);
        $finish;
      end
    end
  endtask

  // Whether a line of values remains.
  function more(input dummy);
    more = !$feof(file);
  endfunction

  // Checks that $fscanf read every value of the line.
  task values_read(input integer got, input integer wanted);
    if (got != wanted) begin
      $display("FAIL line %0d: %0d values read, %0d expected", line, got, wanted);
      errors = errors + 1;
    end
  endtask

  // Compares an output with its expected value; x bits of the expected value are not compared, z bits must be
  // z.
  task check(input [8*24-1:0] name, input [255:0] got, input [255:0] want);
    integer i;
    reg same;
    begin
      same = 1'b1;
      for (i = 0; i < 256; i = i + 1)
        if (want[i] !== 1'bx && got[i] !== want[i]) same = 1'b0;
      checks = checks + 1;
      if (!same) begin
        $display("FAIL line %0d %0s: got %h, expected %h", line, name, got, want);
        errors = errors + 1;
      end
    end
  endtask

  task next;
    line = line + 1;
  endtask

  task finish;
    begin
      if (errors == 0 && checks > 0) $display("PASS (%0d checks)", checks);
      $finish;
    end
  endtask
endmodule
