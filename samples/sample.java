// A sample for the Textzone demo: a small Java class.
package demo;

import java.util.ArrayList;
import java.util.List;

/**
 * Keeps the last few values and their mean.
 */
public class RunningMean {
    private final int capacity;
    private final List<Double> values = new ArrayList<>();

    public RunningMean(int capacity) {
        this.capacity = capacity;
    }

    public synchronized void add(double value) {
        if (values.size() == capacity) values.remove(0);
        values.add(value);
    }

    public double mean() {
        double sum = 0;
        for (double v : values) sum += v;
        return values.isEmpty() ? 0 : sum / values.size();
    }

    @Override
    public String toString() {
        return "RunningMean(" + values.size() + " of " + capacity + ")";
    }
}
