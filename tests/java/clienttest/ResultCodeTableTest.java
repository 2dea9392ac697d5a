package clienttest;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;

import com.zq.OrvexCore.client.ResultCode;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.Arrays;
import java.util.List;
import java.util.regex.Matcher;
import java.util.regex.Pattern;
import org.junit.jupiter.api.Test;

/** The Java table of result codes is the C header's, entry for entry and in order. */
class ResultCodeTableTest {
    private static final Pattern ENTRY =
            Pattern.compile("X\\((\\w+),\\s*(-?\\d+),\\s*\"((?:[^\"\\\\]|\\\\.)*)\"\\)");

    @Test
    void javaTableEqualsTheHeader() throws IOException {
        String header = Files.readString(Path.of(System.getProperty("orvex.error.header")));
        String table = header.substring(header.indexOf("#define ORVEX_RESULT_CODES"),
                header.indexOf("enum orvex_retval_e"));
        List<String> expected = new ArrayList<>();
        Matcher m = ENTRY.matcher(table);
        while (m.find()) {
            expected.add(m.group(1) + "=" + m.group(2) + ":" + m.group(3));
        }
        List<String> actual = Arrays.stream(ResultCode.values())
                .map(c -> c.name() + "=" + c.value() + ":" + c.message())
                .toList();

        assertFalse(expected.isEmpty(), "no entries found in the header");
        assertEquals(expected, actual);
        for (ResultCode c : ResultCode.values()) {
            assertEquals(c, ResultCode.of(c.value()).orElseThrow());
        }
    }
}
